// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include "base/strings.h"
#include "platform/message_box.h"
#include "widgets/NumberBox.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QStyle>
#include <QVBoxLayout>

namespace tolvo {

namespace {

class dlgWordWrap : public SettingsDialog<WordWrapSettings> {
  public:
    dlgWordWrap(const WordWrapSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] WordWrapSettings settings() const override;
    void setSettings(const WordWrapSettings &settings) override;
    /// Stays open, with a message, for a page width out of its limits.
    void accept() override;

  private:
    NumberBox *m_width;
    QCheckBox *m_justify;
    QCheckBox *m_hanging;
    Options<Filler> m_tab;
};

dlgWordWrap::dlgWordWrap(const WordWrapSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context),
      m_width(new NumberBox(QStringLiteral("txtWidth"), QStringLiteral("Page width"),
                            {WordWrapSettings::narrowest, WordWrapSettings::widest, true, true}, this)),
      m_justify(new QCheckBox(QStringLiteral("&Justify (no ragged right margin)"), this)),
      m_hanging(new QCheckBox(QStringLiteral("&Hanging indent"), this)),
      m_tab(QStringLiteral("optTab"), {QStringLiteral("&Tab"), QStringLiteral("Eight &spaces")}, this) {
    m_justify->setObjectName(QStringLiteral("chkJustify"));
    m_hanging->setObjectName(QStringLiteral("chkHanging"));

    auto *width = new QHBoxLayout;
    width->addWidget(labelFor(m_width, QStringLiteral("Page width:")));
    width->addWidget(m_width);
    width->addWidget(new QLabel(QStringLiteral("characters"), this));
    width->addStretch();
    auto *indents = new QVBoxLayout;
    indents->setContentsMargins(style()->pixelMetric(QStyle::PM_IndicatorWidth) +
                                    style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing),
                                0, 0, 0);
    indents->addWidget(m_tab.button(Filler::Tab));
    indents->addWidget(m_tab.button(Filler::Blanks));
    auto *contents = new QVBoxLayout;
    contents->addLayout(width);
    contents->addWidget(m_justify);
    contents->addWidget(m_hanging);
    contents->addLayout(indents);
    contents->addStretch();
    finishDialog(*this, QStringLiteral("dlgWordWrap"), QStringLiteral("Word Wrap"), contents);

    connect(m_hanging, &QCheckBox::toggled, this, [this](bool on) { m_tab.setEnabled(on); });
    setSettings(settings);
}

WordWrapSettings dlgWordWrap::settings() const {
    return {m_width->value(), m_justify->isChecked(), m_hanging->isChecked(), m_tab.choice() == Filler::Tab};
}

void dlgWordWrap::setSettings(const WordWrapSettings &settings) {
    m_width->setValue(settings.width);
    m_justify->setChecked(settings.justify);
    m_hanging->setChecked(settings.hanging);
    m_tab.choose(settings.tab ? Filler::Tab : Filler::Blanks);
    m_tab.setEnabled(settings.hanging);
    m_width->begin();
}

void dlgWordWrap::accept() {
    const int width = m_width->value();
    if (width >= WordWrapSettings::narrowest && width <= WordWrapSettings::widest) {
        ToolDialog::accept();
        return;
    }
    boxes().show({FillTemplate(QStringLiteral("Page width must lie between %0 and %1 inclusive"),
                               {QString::number(WordWrapSettings::narrowest),
                                QString::number(WordWrapSettings::widest)}),
                  BoxIcon::Information});
    m_width->begin();
}

} // namespace

SettingsDialogPtr<WordWrapSettings> makeToolDialog(const WordWrapSettings &settings,
                                                   const ToolDialogContext &context) {
    return std::make_unique<dlgWordWrap>(settings, context);
}

} // namespace tolvo
