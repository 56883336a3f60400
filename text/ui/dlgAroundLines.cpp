// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/line_parts.h"
#include "text/ui/dialog_fields.h"
#include "widgets/NumberBox.h"

#include <QGridLayout>
#include <limits>

namespace tolvo {

namespace {

constexpr NumberBox::Limits anyNumber{.lowest = std::numeric_limits<int>::min(), .takesMinus = true};

class dlgAroundLines : public SettingsDialog<AroundLinesSettings> {
  public:
    dlgAroundLines(const AroundLinesSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] AroundLinesSettings settings() const override;
    void setSettings(const AroundLinesSettings &settings) override;

  private:
    void arrange();
    void refresh();

    QLineEdit *m_before;
    QLineEdit *m_after;
    NumberBox *m_start;
    NumberBox *m_step;
    NumberBox *m_width;
    QCheckBox *m_skipBlanks;
    SampleBox *m_sample;
};

dlgAroundLines::dlgAroundLines(const AroundLinesSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_before(makeLine(QStringLiteral("txtBefore"), this)),
      m_after(makeLine(QStringLiteral("txtAfter"), this)),
      m_start(new NumberBox(QStringLiteral("txtStart"), QStringLiteral("Start"), anyNumber, this)),
      m_step(new NumberBox(QStringLiteral("txtStep"), QStringLiteral("Increment"), anyNumber, this)),
      m_width(new NumberBox(QStringLiteral("txtWidth"), QStringLiteral("Digits"),
                            {0, AroundLinesSettings::widest}, this)),
      m_skipBlanks(makeCheck(QStringLiteral("chkSkipBlanks"), QStringLiteral("&Not on blank lines"), this)),
      m_sample(makeSample(5)) {
    arrange();
    setSettings(settings);
    whenAnythingChanges(*this, this, [this] { refresh(); });
}

void dlgAroundLines::arrange() {
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_before, QStringLiteral("&Before:")), 0, 0);
    grid->addWidget(m_before, 0, 1);
    grid->addWidget(labelFor(m_after, QStringLiteral("&After:")), 1, 0);
    grid->addWidget(m_after, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("{n} in either text is the number of the line."), this), 2, 1);
    int row = 3;
    for (const auto &[box, caption] : {std::pair(m_start, QStringLiteral("&Start:")),
                                       {m_step, QStringLiteral("&Increment:")},
                                       {m_width, QStringLiteral("&Digits:")}}) {
        grid->addWidget(labelFor(box, caption), row, 0);
        box->setMinimumWidth(m_start->sizeHint().width());
        grid->addWidget(box, row++, 1, Qt::AlignLeft);
    }
    grid->addWidget(m_skipBlanks, row++, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), row++, 0, 1, 2);
    grid->addWidget(m_sample, row, 0, 1, 2);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);
    finishDialog(*this, QStringLiteral("dlgAroundLines"), QStringLiteral("Before and After Lines"), grid);
}

AroundLinesSettings dlgAroundLines::settings() const {
    return {m_before->text(), m_after->text(),  m_start->value(),
            m_step->value(),  m_width->value(), m_skipBlanks->isChecked()};
}

void dlgAroundLines::setSettings(const AroundLinesSettings &settings) {
    m_before->setText(settings.before);
    m_after->setText(settings.after);
    m_start->setValue(settings.start);
    m_step->setValue(settings.step);
    m_width->setValue(settings.width);
    m_skipBlanks->setChecked(settings.skipBlanks);
    refresh();
    m_before->setFocus();
    m_before->selectAll();
}

void dlgAroundLines::refresh() {
    m_sample->setSample(withTextAround(u"First line\r\nSecond line\r\n\r\nThird line", settings()));
}

} // namespace

SettingsDialogPtr<AroundLinesSettings> makeToolDialog(const AroundLinesSettings &settings,
                                                      const ToolDialogContext &context) {
    return std::make_unique<dlgAroundLines>(settings, context);
}

} // namespace tolvo
