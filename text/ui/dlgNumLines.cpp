// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/cTextMethods.h"
#include "widgets/NumberBox.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyle>

namespace tolvo {

namespace {

// Two paragraphs, and a blank line that is numbered or isn't.
constexpr const char *filler =
    "Lorem ipsum dolor adipiscing elit, sed diam nonummy nibh euismod.\r\n\r\n"
    "Tincidunt ut laoreet dolore magna aliquam erat volutpat. Ut wisi enim ad minim veniam, quis nostrud "
    "exerci tation.";

constexpr NumberBox::Limits lineNumber{.lowest = 1, .takesMinus = true};

class dlgNumLines : public SettingsDialog<LineNumberSettings> {
  public:
    dlgNumLines(const LineNumberSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] LineNumberSettings settings() const override;
    void setSettings(const LineNumberSettings &settings) override;

  private:
    void arrange();
    void refresh();

    NumberBox *m_start;
    NumberBox *m_step;
    NumberBox *m_every;
    QCheckBox *m_ignoreBlanks;
    QCheckBox *m_renumber;
    QCheckBox *m_pad;
    Options<bool> m_range; ///< true: right
    SampleBox *m_sample;
};

dlgNumLines::dlgNumLines(const LineNumberSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context),
      m_start(new NumberBox(QStringLiteral("txtStart"), QStringLiteral("Start"), lineNumber, this)),
      m_step(new NumberBox(QStringLiteral("txtStep"), QStringLiteral("Increment"), lineNumber, this)),
      m_every(new NumberBox(QStringLiteral("txtEvery"), QStringLiteral("Every how many lines"), lineNumber,
                            this)),
      m_ignoreBlanks(new QCheckBox(QStringLiteral("Ignore blank lines"), this)),
      m_renumber(new QCheckBox(QStringLiteral("Renumber"), this)),
      m_pad(new QCheckBox(QStringLiteral("Pad with spaces"), this)),
      m_range(QStringLiteral("optRange"), {QStringLiteral("Range &left"), QStringLiteral("Range &right")},
              this),
      m_sample(makeSample(9)) {
    m_ignoreBlanks->setObjectName(QStringLiteral("chkIgnoreBlanks"));
    m_renumber->setObjectName(QStringLiteral("chkRenumber"));
    m_pad->setObjectName(QStringLiteral("chkPad"));
    arrange();
    setSettings(settings);

    for (NumberBox *box : {m_start, m_step, m_every})
        connect(box, &NumberBox::changed, this, &dlgNumLines::refresh);
    for (QCheckBox *box : {m_ignoreBlanks, m_pad})
        connect(box, &QCheckBox::toggled, this, &dlgNumLines::refresh);
    connect(m_range.group(), &QButtonGroup::idToggled, this, &dlgNumLines::refresh);
}

void dlgNumLines::arrange() {
    auto *every = new QHBoxLayout;
    every->addWidget(m_every);
    every->addWidget(new QLabel(QStringLiteral("lines."), this));
    every->addStretch();
    auto *ranges = new QVBoxLayout;
    ranges->setContentsMargins(style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                                   style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing),
                               0, 0, 0);
    ranges->addWidget(m_range.button(false));
    ranges->addWidget(m_range.button(true));

    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_start, QStringLiteral("Start:")), 0, 0);
    grid->addWidget(m_start, 0, 1);
    grid->addWidget(labelFor(m_step, QStringLiteral("Increment:")), 1, 0);
    grid->addWidget(m_step, 1, 1);
    grid->addWidget(labelFor(m_every, QStringLiteral("Every")), 2, 0);
    grid->addLayout(every, 2, 1);
    auto *boxes = new QVBoxLayout;
    boxes->addWidget(m_ignoreBlanks);
    boxes->addWidget(m_renumber);
    boxes->addWidget(m_pad);
    boxes->addLayout(ranges);
    boxes->addStretch();
    grid->setColumnMinimumWidth(2, fontMetrics().averageCharWidth() * 3);
    grid->addLayout(boxes, 0, 3, 4, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), 4, 0, 1, 4);
    grid->addWidget(m_sample, 5, 0, 1, 4);
    grid->setRowStretch(3, 1); // what the check boxes need more than the numbers
    grid->setRowStretch(5, 100);
    grid->setColumnStretch(3, 1);
    finishDialog(*this, QStringLiteral("dlgNumLines"), QStringLiteral("Line Numbering"), grid);
}

LineNumberSettings dlgNumLines::settings() const {
    LineNumberSettings settings;
    settings.start = m_start->value();
    settings.step = m_step->value();
    settings.every = m_every->value();
    settings.renumber = m_renumber->isChecked();
    settings.ignoreBlanks = m_ignoreBlanks->isChecked();
    settings.pad = m_pad->isChecked();
    settings.rangeRight = m_range.choice();
    return settings;
}

void dlgNumLines::setSettings(const LineNumberSettings &settings) {
    m_start->setValue(settings.start);
    m_step->setValue(settings.step);
    m_every->setValue(settings.every);
    m_renumber->setChecked(settings.renumber);
    m_ignoreBlanks->setChecked(settings.ignoreBlanks);
    m_pad->setChecked(settings.pad);
    m_range.choose(settings.rangeRight);
    refresh();
    m_start->begin();
}

void dlgNumLines::refresh() {
    m_range.setEnabled(m_pad->isChecked());
    const LineNumberSettings now = settings();
    m_sample->setSample(engine().LineNumber(QString::fromLatin1(filler), now.start, now.step, now.every,
                                            !now.ignoreBlanks, now.pad, now.rangeRight));
}

} // namespace

SettingsDialogPtr<LineNumberSettings> makeToolDialog(const LineNumberSettings &settings,
                                                     const ToolDialogContext &context) {
    return std::make_unique<dlgNumLines>(settings, context);
}

} // namespace tolvo
