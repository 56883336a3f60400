// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "platform/message_box.h"
#include "text/ui/dialog_fields.h"

#include <QGridLayout>

namespace tolvo {

namespace {

using Mode = PatternLinesSettings::Mode;

const QString searched = QStringLiteral("Tea, 2 cups\r\nmilk\r\n\r\na teapot\r\ncups and saucers");

class dlgPatternLines : public SettingsDialog<PatternLinesSettings> {
  public:
    dlgPatternLines(const PatternLinesSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] PatternLinesSettings settings() const override;
    void setSettings(const PatternLinesSettings &settings) override;
    /// Refuses a pattern that can't be looked for.
    void accept() override;

  private:
    void arrange();
    [[nodiscard]] ChosenLines chosen() const;
    void refresh();

    decltype(ToolDialogContext::choose) m_choose;
    QLineEdit *m_pattern;
    QComboBox *m_mode;
    Options<bool> m_drop;
    QCheckBox *m_matchCase;
    QCheckBox *m_wholeWords;
    QCheckBox *m_specialChars;
    SampleBox *m_sample;
};

dlgPatternLines::dlgPatternLines(const PatternLinesSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_choose(context.choose),
      m_pattern(makeLine(QStringLiteral("txtPattern"), this)), m_mode(new QComboBox(this)),
      m_drop(QStringLiteral("optDrop"),
             {QStringLiteral("&Keep the lines with it"), QStringLiteral("&Drop them")}, this),
      m_matchCase(makeCheck(QStringLiteral("chkMatchCase"), QStringLiteral("Match &case"), this)),
      m_wholeWords(makeCheck(QStringLiteral("chkWholeWords"), QStringLiteral("Whole words &only"), this)),
      m_specialChars(makeCheck(QStringLiteral("chkSpecialChars"),
                               QStringLiteral("&Special characters (\\t, \\xHH)"), this)),
      m_sample(makeSample(6)) {
    m_mode->setObjectName(QStringLiteral("cmbMode"));
    m_mode->addItems(
        {QStringLiteral("Simple text"), QStringLiteral("Wildcards"), QStringLiteral("Regular expression")});
    arrange();
    setSettings(settings);
    whenAnythingChanges(*this, this, [this] { refresh(); });
}

void dlgPatternLines::arrange() {
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_pattern, QStringLiteral("&Pattern:")), 0, 0);
    grid->addWidget(m_pattern, 0, 1);
    grid->addWidget(labelFor(m_mode, QStringLiteral("K&ind:")), 1, 0);
    grid->addWidget(m_mode, 1, 1);
    int row = 2;
    for (QAbstractButton *button : {m_drop.button(false), m_drop.button(true)})
        grid->addWidget(button, row++, 1);
    for (QCheckBox *check : {m_matchCase, m_wholeWords, m_specialChars})
        grid->addWidget(check, row++, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), row, 0, 1, 2);
    grid->addWidget(m_sample, row + 1, 0, 1, 2);
    grid->setRowStretch(row + 1, 1);
    grid->setColumnStretch(1, 1);
    finishDialog(*this, QStringLiteral("dlgPatternLines"), QStringLiteral("Keep or Drop Lines"), grid);
}

PatternLinesSettings dlgPatternLines::settings() const {
    return {m_drop.choice(),
            m_pattern->text(),
            static_cast<Mode>(m_mode->currentIndex() + static_cast<int>(Mode::Simple)),
            m_matchCase->isChecked(),
            m_wholeWords->isChecked(),
            m_specialChars->isChecked()};
}

void dlgPatternLines::setSettings(const PatternLinesSettings &settings) {
    m_drop.choose(settings.drop);
    m_pattern->setText(settings.pattern);
    m_mode->setCurrentIndex(static_cast<int>(settings.mode) - static_cast<int>(Mode::Simple));
    m_matchCase->setChecked(settings.matchCase);
    m_wholeWords->setChecked(settings.wholeWords);
    m_specialChars->setChecked(settings.specialChars);
    refresh();
    m_pattern->setFocus();
    m_pattern->selectAll();
}

ChosenLines dlgPatternLines::chosen() const {
    return m_choose ? m_choose(searched, settings()) : ChosenLines{searched, {}};
}

void dlgPatternLines::refresh() {
    const bool isExpression = settings().mode == Mode::RegularExpression;
    m_wholeWords->setEnabled(!isExpression);
    m_specialChars->setEnabled(!isExpression);
    const ChosenLines lines = chosen();
    m_sample->setSample(lines.trouble.isEmpty() ? lines.text : lines.trouble);
    m_pattern->setAccessibleDescription(lines.trouble);
}

void dlgPatternLines::accept() {
    const QString trouble = chosen().trouble;
    if (trouble.isEmpty())
        return SettingsDialog::accept();
    boxes().show({.text = trouble, .icon = BoxIcon::Information});
    m_pattern->setFocus();
    m_pattern->selectAll();
}

} // namespace

SettingsDialogPtr<PatternLinesSettings> makeToolDialog(const PatternLinesSettings &settings,
                                                       const ToolDialogContext &context) {
    return std::make_unique<dlgPatternLines>(settings, context);
}

} // namespace tolvo
