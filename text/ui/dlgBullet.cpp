// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "base/character_sets.h"
#include "text/cTextMethods.h"
#include "widgets/NumberBox.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>

namespace tolvo {

namespace {

class dlgBullet : public SettingsDialog<BulletSettings> {
  public:
    dlgBullet(const BulletSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] BulletSettings settings() const override;
    void setSettings(const BulletSettings &settings) override;

  private:
    void refreshSample();

    QComboBox *m_text;
    Options<Filler> m_tab;
    NumberBox *m_spaces;
    SampleBox *m_sample;
};

dlgBullet::dlgBullet(const BulletSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_text(makeTextList(QStringLiteral("cmbBulletChar"))),
      m_tab(QStringLiteral("optTab"), {QStringLiteral("&Tab"), QStringLiteral("&Spaces")}, this),
      m_spaces(new NumberBox(QStringLiteral("txtSpaces"), QStringLiteral("Follow by spaces"),
                             {0, BulletSettings::mostTypedSpaces}, this)),
      m_sample(makeSample(4)) {
    for (const QChar bullet : bulletMarks)
        m_text->addItem(bullet);
    m_sample->setLineWrapMode(QPlainTextEdit::NoWrap);

    auto *follow = new QHBoxLayout;
    follow->addWidget(m_tab.button(Filler::Tab));
    follow->addWidget(m_tab.button(Filler::Blanks));
    follow->addWidget(m_spaces);
    follow->addStretch();
    auto *grid = new QGridLayout;
    grid->addWidget(labelFor(m_text, QStringLiteral("Bullet character:")), 0, 0);
    grid->addWidget(m_text, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Follow by:"), this), 1, 0);
    grid->addLayout(follow, 1, 1);
    grid->addWidget(labelFor(m_sample, QStringLiteral("Sample:")), 2, 0, 1, 2);
    grid->addWidget(m_sample, 3, 0, 1, 2);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(1, 1);
    finishDialog(*this, QStringLiteral("dlgBullet"), QStringLiteral("Bullet List Style"), grid);
    setSettings(settings);

    connect(m_text, &QComboBox::editTextChanged, this, &dlgBullet::refreshSample);
    connect(m_tab.group(), &QButtonGroup::idToggled, this, &dlgBullet::refreshSample);
    connect(m_spaces, &NumberBox::changed, this, &dlgBullet::refreshSample);
    connect(m_spaces, &NumberBox::edited, this, [this] { m_tab.choose(Filler::Blanks); });
}

BulletSettings dlgBullet::settings() const {
    return {m_text->currentText(), m_tab.choice() == Filler::Tab, m_spaces->value()};
}

void dlgBullet::setSettings(const BulletSettings &settings) {
    m_text->setCurrentText(settings.bullet);
    m_tab.choose(settings.tab ? Filler::Tab : Filler::Blanks);
    m_spaces->setValue(settings.spaces);
    refreshSample();
    m_text->setFocus();
    m_text->lineEdit()->selectAll();
}

void dlgBullet::refreshSample() {
    m_sample->setSample(engine().Indent(
        QStringLiteral("First list item\r\nSecond list item\r\nThird list item"), settings().prefix()));
}

} // namespace

SettingsDialogPtr<BulletSettings> makeToolDialog(const BulletSettings &settings,
                                                 const ToolDialogContext &context) {
    return std::make_unique<dlgBullet>(settings, context);
}

} // namespace tolvo
