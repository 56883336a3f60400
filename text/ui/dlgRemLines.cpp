// SPDX-License-Identifier: MIT
#include "text/ui/tool_dialogs.h"

#include <QCheckBox>
#include <QVBoxLayout>

namespace tolvo {

namespace {

class dlgRemLines : public SettingsDialog<RemoveLinesSettings> {
  public:
    dlgRemLines(const RemoveLinesSettings &settings, const ToolDialogContext &context);

    [[nodiscard]] RemoveLinesSettings settings() const override;
    void setSettings(const RemoveLinesSettings &settings) override;

  private:
    QCheckBox *m_single;
    QCheckBox *m_multiple;
};

dlgRemLines::dlgRemLines(const RemoveLinesSettings &settings, const ToolDialogContext &context)
    : SettingsDialog(context), m_single(new QCheckBox(QStringLiteral("Remove single blank lines"), this)),
      m_multiple(new QCheckBox(QStringLiteral("Reduce multiple blank lines to a single one"), this)) {
    m_single->setObjectName(QStringLiteral("chkSingle"));
    m_multiple->setObjectName(QStringLiteral("chkMultiple"));
    auto *note = new QLabel(
        QStringLiteral(
            "A blank line is a line (or paragraph) that is empty or consists only of white space."),
        this);
    note->setWordWrap(true);
    note->setMinimumWidth(fontMetrics().averageCharWidth() * 50);

    auto *contents = new QVBoxLayout;
    contents->addWidget(m_single);
    contents->addWidget(m_multiple);
    contents->addSpacing(fontMetrics().height() / 2);
    contents->addWidget(note);
    contents->addStretch();
    finishDialog(*this, QStringLiteral("dlgRemLines"), QStringLiteral("Remove Lines"), contents);
    setSettings(settings);
}

RemoveLinesSettings dlgRemLines::settings() const {
    return {m_single->isChecked(), m_multiple->isChecked()};
}

void dlgRemLines::setSettings(const RemoveLinesSettings &settings) {
    m_single->setChecked(settings.single);
    m_multiple->setChecked(settings.multiple);
}

} // namespace

SettingsDialogPtr<RemoveLinesSettings> makeToolDialog(const RemoveLinesSettings &settings,
                                                      const ToolDialogContext &context) {
    return std::make_unique<dlgRemLines>(settings, context);
}

} // namespace tolvo
