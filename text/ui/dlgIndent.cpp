// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "base/strings.h"
#include "text/numbering.h"
#include "widgets/NumberBox.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tolvo {

namespace {

using Choice = IndentSettings::Choice;

class dlgIndent : public SettingsDialog<IndentSettings> {
  public:
    dlgIndent(const IndentSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] IndentSettings settings() const override;
    void setSettings(const IndentSettings &settings) override;
    /// Puts the text, unless it is blank, on top of the list of recent ones.
    void accept() override;

  protected:
    [[nodiscard]] bool usesText() const override { return m_option.choice() == Choice::Text; }

  private:
    [[nodiscard]] QStringList recentTexts() const;

    Options<Choice> m_option;
    NumberBox *m_spaces;
    QComboBox *m_text;
};

dlgIndent::dlgIndent(const IndentSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context),
      m_option(QStringLiteral("optTab"),
               {QStringLiteral("&Tab"), QStringLiteral("&Spaces"), QStringLiteral("This te&xt:")}, this),
      m_spaces(new NumberBox(QStringLiteral("txtSpaces"), QStringLiteral("Spaces"), {0, mostSpaces}, this)),
      m_text(makeTextList(QStringLiteral("cmbIndentText"))) {
    m_text->setAccessibleName(QStringLiteral("Indent text"));
    m_text->setMinimumContentsLength(24);
    m_text->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    auto *frame = new QGroupBox(QStringLiteral("Options"), this);
    auto *options = new QGridLayout(frame);
    options->addWidget(m_option.button(Choice::Tab), 0, 0);
    options->addWidget(m_option.button(Choice::Spaces), 1, 0);
    options->addWidget(m_spaces, 1, 1, Qt::AlignLeft);
    options->addWidget(m_option.button(Choice::Text), 2, 0);
    options->addWidget(m_text, 2, 1);
    options->setColumnStretch(1, 1);
    // Option, its box, the next option: the order of the TAB key.
    const QList<QWidget *> order = {m_option.button(Choice::Tab), m_option.button(Choice::Spaces), m_spaces,
                                    m_option.button(Choice::Text), m_text};
    for (qsizetype i = 1; i < order.size(); ++i)
        setTabOrder(order.at(i - 1), order.at(i));

    auto *contents = new QVBoxLayout;
    contents->addWidget(new QLabel(QStringLiteral("Indent with:"), this));
    contents->addWidget(frame);
    contents->addStretch();
    finishDialog(*this, QStringLiteral("dlgIndent"), QStringLiteral("Indent"), contents);
    setSettings(settings);

    const auto chooseText = [this] { m_option.choose(Choice::Text); };
    connect(m_text->lineEdit(), &QLineEdit::textEdited, this, chooseText);
    connect(m_text, &QComboBox::activated, this, chooseText);
    connect(m_spaces, &NumberBox::edited, this, [this] { m_option.choose(Choice::Spaces); });
}

IndentSettings dlgIndent::settings() const {
    return {m_option.choice(), m_spaces->value(), m_text->currentText(), recentTexts()};
}

void dlgIndent::setSettings(const IndentSettings &settings) {
    m_option.choose(settings.choice);
    m_spaces->setValue(settings.spaces);
    m_text->clear();
    m_text->addItems(settings.recentTexts);
    m_text->setCurrentIndex(-1);
    m_text->setEditText(settings.text);
    m_option.button(settings.choice)->setFocus();
}

QStringList dlgIndent::recentTexts() const {
    QStringList texts;
    for (int i = 0; i < m_text->count(); ++i)
        texts.append(m_text->itemText(i));
    return texts;
}

void dlgIndent::accept() {
    const QString entered = m_text->currentText();
    if (!trimBlanks(entered).isEmpty()) {
        for (int i = m_text->count() - 1; i >= 0; --i) {
            if (trimBlanks(m_text->itemText(i)) == trimBlanks(entered))
                m_text->removeItem(i);
        }
        m_text->insertItem(0, entered);
        while (m_text->count() > IndentSettings::mostRecentTexts)
            m_text->removeItem(m_text->count() - 1);
        m_text->setEditText(entered);
    }
    ToolDialog::accept();
}

} // namespace

SettingsDialogPtr<IndentSettings> makeToolDialog(const IndentSettings &settings,
                                                 const ToolDialogContext &context) {
    return std::make_unique<dlgIndent>(settings, context);
}

} // namespace tolvo
