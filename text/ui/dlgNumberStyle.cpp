// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "text/cTextMethods.h"
#include "text/numbering.h"
#include "widgets/NumberBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>

namespace tolvo {

namespace {

constexpr int fewestOutlineSpaces = 4;

class dlgNumberStyle : public SettingsDialog<NumberListSettings> {
  public:
    dlgNumberStyle(const NumberListSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] NumberListSettings settings() const override;
    void setSettings(const NumberListSettings &settings) override;

  private:
    void arrange();
    void styleChosen();
    void refreshSample();
    [[nodiscard]] QString sampleText() const;

    QComboBox *m_style;
    NumberBox *m_start;
    QCheckBox *m_renumber;
    QComboBox *m_followChar;
    QLabel *m_followCharLabel;
    Options<Filler> m_tab;
    NumberBox *m_spaces;
    SampleBox *m_sample;
};

dlgNumberStyle::dlgNumberStyle(const NumberListSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_style(new QComboBox(this)),
      m_start(new NumberBox(QStringLiteral("txtStart"), QStringLiteral("Start"),
                            {1, NumberListSettings::highestTypedStart}, this)),
      m_renumber(new QCheckBox(QStringLiteral("Renumber"), this)), m_followChar(new QComboBox(this)),
      m_followCharLabel(labelFor(m_followChar, QStringLiteral("Punctuation:"))),
      m_tab(QStringLiteral("optTab"), {QStringLiteral("&Tab after"), QStringLiteral("&Pad to")}, this),
      m_spaces(new NumberBox(QStringLiteral("txtSpaces"), QStringLiteral("Pad to spaces"),
                             {0, NumberListSettings::mostTypedSpaces}, this)),
      m_sample(makeSample(7)) {
    m_style->setObjectName(QStringLiteral("cmbStyle"));
    for (const QStringView name : listStyleNames)
        m_style->addItem(name.toString());
    m_renumber->setObjectName(QStringLiteral("chkRenumber"));
    m_followChar->setObjectName(QStringLiteral("cmbFollowChar"));
    for (const FollowCharacters &characters : followCharacters)
        m_followChar->addItem(characters.name.toString());
    m_sample->setLineWrapMode(QPlainTextEdit::NoWrap);
    arrange();
    setSettings(settings);

    connect(m_style, &QComboBox::currentIndexChanged, this, &dlgNumberStyle::styleChosen);
    connect(m_spaces, &NumberBox::edited, this, [this] { m_tab.choose(Filler::Blanks); });
    connect(m_followChar, &QComboBox::currentIndexChanged, this, &dlgNumberStyle::refreshSample);
    for (NumberBox *box : {m_start, m_spaces})
        connect(box, &NumberBox::changed, this, &dlgNumberStyle::refreshSample);
    connect(m_tab.group(), &QButtonGroup::idToggled, this, &dlgNumberStyle::refreshSample);
}

void dlgNumberStyle::arrange() {
    auto *separator = new QGroupBox(this);
    auto *pad = new QHBoxLayout;
    pad->addWidget(m_tab.button(Filler::Blanks));
    pad->addWidget(m_spaces);
    pad->addWidget(new QLabel(QStringLiteral("spaces"), this));
    pad->addStretch();
    auto *choices = new QVBoxLayout(separator);
    choices->addWidget(m_tab.button(Filler::Tab));
    choices->addLayout(pad);

    auto *start = new QHBoxLayout;
    start->addWidget(m_start);
    start->addSpacing(fontMetrics().averageCharWidth() * 3);
    start->addWidget(m_renumber);
    start->addStretch();
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_style, QStringLiteral("Style:")), 0, 0);
    grid->addWidget(m_style, 0, 1);
    grid->addWidget(labelFor(m_start, QStringLiteral("Start:")), 1, 0);
    grid->addLayout(start, 1, 1);
    grid->addWidget(m_followCharLabel, 2, 0);
    grid->addWidget(m_followChar, 2, 1);
    grid->addWidget(separator, 3, 0, 1, 2);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), 4, 0, 1, 2);
    grid->addWidget(m_sample, 5, 0, 1, 2);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(1, 1);
    finishDialog(*this, QStringLiteral("dlgNumberStyle"), QStringLiteral("Number List Style"), grid);
}

NumberListSettings dlgNumberStyle::settings() const {
    NumberListSettings settings;
    settings.style = static_cast<ListStyle>(m_style->currentIndex());
    settings.start = m_start->value();
    settings.renumber = m_renumber->isChecked();
    settings.followChar = static_cast<FollowChar>(m_followChar->currentIndex());
    settings.tab = m_tab.choice() == Filler::Tab;
    settings.spaces = m_spaces->value();
    return settings;
}

void dlgNumberStyle::setSettings(const NumberListSettings &settings) {
    m_start->setValue(settings.start);
    m_renumber->setChecked(settings.renumber);
    m_followChar->setCurrentIndex(static_cast<int>(settings.followChar));
    m_tab.choose(settings.tab ? Filler::Tab : Filler::Blanks);
    m_spaces->setValue(settings.spaces);
    m_style->setCurrentIndex(static_cast<int>(settings.style));
    styleChosen();
}

void dlgNumberStyle::styleChosen() {
    const bool outline = settings().style == ListStyle::Outline;
    m_followChar->setEnabled(!outline);
    m_followCharLabel->setEnabled(!outline);
    if (outline && m_spaces->value() < fewestOutlineSpaces)
        m_spaces->setValue(fewestOutlineSpaces);
    refreshSample();
}

QString dlgNumberStyle::sampleText() const {
    const QString item = QStringLiteral("%1 list item\r\n");
    const QString first = item.arg(QStringLiteral("First"));
    const QString others = item.arg(QStringLiteral("Second")) + item.arg(QStringLiteral("Third")) +
                           item.arg(QStringLiteral("Fourth")).chopped(2);
    if (settings().style != ListStyle::Outline)
        return first + others;
    const QString deeper =
        m_tab.choice() == Filler::Tab ? QStringLiteral("\t") : QString(std::max(m_spaces->value(), 1), u' ');
    return first + deeper + QStringLiteral("First sublist item\r\n") + deeper +
           QStringLiteral("Second sublist item\r\n") + others;
}

void dlgNumberStyle::refreshSample() {
    const NumberListSettings now = settings();
    m_sample->setSample(
        engine().number(sampleText(), now.start, now.style, now.followChar, now.tab, now.spaces));
}

} // namespace

SettingsDialogPtr<NumberListSettings> makeToolDialog(const NumberListSettings &settings,
                                                     const ToolDialogContext &context) {
    return std::make_unique<dlgNumberStyle>(settings, context);
}

} // namespace tolvo
