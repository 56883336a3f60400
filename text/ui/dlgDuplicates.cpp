// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/line_choice.h"
#include "text/ui/dialog_fields.h"

#include <QVBoxLayout>

namespace tolvo {

namespace {

const QString withAlike = QStringLiteral("tea\r\nmilk\r\n\r\nTea\r\n  tea\r\nmilk\r\nmilk\r\n\r\ntea");

class dlgDuplicates : public SettingsDialog<DuplicateSettings> {
  public:
    dlgDuplicates(const DuplicateSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] DuplicateSettings settings() const override;
    void setSettings(const DuplicateSettings &settings) override;

  private:
    void refresh() { m_sample->setSample(withoutDuplicates(withAlike, settings())); }

    Options<bool> m_keepLast;
    QCheckBox *m_ignoreCase;
    QCheckBox *m_ignoreBlanks;
    QCheckBox *m_neighbours;
    QCheckBox *m_leaveBlanks;
    QCheckBox *m_counts;
    SampleBox *m_sample;
};

dlgDuplicates::dlgDuplicates(const DuplicateSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_keepLast(QStringLiteral("optKeep"),
                                          {QStringLiteral("Keep the &first of lines that are alike"),
                                           QStringLiteral("Keep the &last")},
                                          this),
      m_ignoreCase(makeCheck(QStringLiteral("chkIgnoreCase"), QStringLiteral("Ignore &case"), this)),
      m_ignoreBlanks(makeCheck(QStringLiteral("chkIgnoreBlanks"),
                               QStringLiteral("Ignore how many &spaces there are"), this)),
      m_neighbours(makeCheck(QStringLiteral("chkNeighbours"),
                             QStringLiteral("Only lines that follow each &other"), this)),
      m_leaveBlanks(makeCheck(QStringLiteral("chkLeaveBlanks"), QStringLiteral("Leave &blank lines"), this)),
      m_counts(
          makeCheck(QStringLiteral("chkCounts"), QStringLiteral("Put the cou&nt before each line"), this)),
      m_sample(makeSample(9)) {
    auto *contents = new QVBoxLayout;
    contents->addWidget(m_keepLast.button(false));
    contents->addWidget(m_keepLast.button(true));
    contents->addSpacing(fontMetrics().height() / 2);
    for (QCheckBox *check : {m_ignoreCase, m_ignoreBlanks, m_neighbours, m_leaveBlanks, m_counts})
        contents->addWidget(check);
    contents->addWidget(labelFor(m_sample, QStringLiteral("Sample:")));
    contents->addWidget(m_sample, 1);
    finishDialog(*this, QStringLiteral("dlgDuplicates"), QStringLiteral("Remove Duplicates"), contents);
    setSettings(settings);
    whenAnythingChanges(*this, this, [this] { refresh(); });
}

DuplicateSettings dlgDuplicates::settings() const {
    return {m_keepLast.choice(),       m_ignoreCase->isChecked(),  m_ignoreBlanks->isChecked(),
            m_neighbours->isChecked(), m_leaveBlanks->isChecked(), m_counts->isChecked()};
}

void dlgDuplicates::setSettings(const DuplicateSettings &settings) {
    m_keepLast.choose(settings.keepLast);
    m_ignoreCase->setChecked(settings.ignoreCase);
    m_ignoreBlanks->setChecked(settings.ignoreBlanks);
    m_neighbours->setChecked(settings.neighbours);
    m_leaveBlanks->setChecked(settings.leaveBlanks);
    m_counts->setChecked(settings.counts);
    refresh();
    m_keepLast.button(settings.keepLast)->setFocus();
}

} // namespace

SettingsDialogPtr<DuplicateSettings> makeToolDialog(const DuplicateSettings &settings,
                                                    const ToolDialogContext &context) {
    return std::make_unique<dlgDuplicates>(settings, context);
}

} // namespace tolvo
