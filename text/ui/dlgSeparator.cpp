// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/line_parts.h"
#include "text/ui/dialog_fields.h"

#include <QGridLayout>

namespace tolvo {

namespace {

class dlgSeparator : public SettingsDialog<SeparatorSettings> {
  public:
    dlgSeparator(const SeparatorSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] SeparatorSettings settings() const override;
    void setSettings(const SeparatorSettings &settings) override;

  private:
    void refresh();

    Options<bool> m_join;
    QLineEdit *m_separator;
    QCheckBox *m_trim;
    QCheckBox *m_leaveOutEmpty;
    SampleBox *m_sample;
};

dlgSeparator::dlgSeparator(const SeparatorSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context),
      m_join(QStringLiteral("optJoin"),
             {QStringLiteral("&Split the lines at it"), QStringLiteral("&Join the lines with it")}, this),
      m_separator(makeLine(QStringLiteral("txtSeparator"), this)),
      m_trim(makeCheck(QStringLiteral("chkTrim"), QStringLiteral("&Trim the parts"), this)),
      m_leaveOutEmpty(
          makeCheck(QStringLiteral("chkLeaveOutEmpty"), QStringLiteral("Leave out &empty parts"), this)),
      m_sample(makeSample(5)) {
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_separator, QStringLiteral("Se&parator:")), 0, 0);
    grid->addWidget(m_separator, 0, 1);
    auto *note = new QLabel(QStringLiteral("\\t is a tab, \\n a line end, \\x20 a space."), this);
    int row = 1;
    for (QWidget *field :
         QList<QWidget *>{note, m_join.button(false), m_join.button(true), m_trim, m_leaveOutEmpty})
        grid->addWidget(field, row++, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), row++, 0, 1, 2);
    grid->addWidget(m_sample, row, 0, 1, 2);
    grid->setRowStretch(row, 1);
    grid->setColumnStretch(1, 1);
    setTabOrder(m_separator, m_join.button(false));
    finishDialog(*this, QStringLiteral("dlgSeparator"), QStringLiteral("Split or Join Lines"), grid);
    setSettings(settings);
    whenAnythingChanges(*this, this, [this] { refresh(); });
}

SeparatorSettings dlgSeparator::settings() const {
    return {m_join.choice(), m_separator->text(), m_trim->isChecked(), m_leaveOutEmpty->isChecked()};
}

void dlgSeparator::setSettings(const SeparatorSettings &settings) {
    m_join.choose(settings.join);
    m_separator->setText(settings.separator);
    m_trim->setChecked(settings.trim);
    m_leaveOutEmpty->setChecked(settings.leaveOutEmpty);
    refresh();
    m_separator->setFocus();
    m_separator->selectAll();
}

void dlgSeparator::refresh() {
    const SeparatorSettings now = settings();
    const QString parts = QStringLiteral("tea\r\n milk\r\n\r\nsugar");
    const QString line = splitOrJoined(parts, {.join = true, .separator = now.separator, .trim = false});
    m_sample->setSample(splitOrJoined(now.join ? parts : line, now));
}

} // namespace

SettingsDialogPtr<SeparatorSettings> makeToolDialog(const SeparatorSettings &settings,
                                                    const ToolDialogContext &context) {
    return std::make_unique<dlgSeparator>(settings, context);
}

} // namespace tolvo
