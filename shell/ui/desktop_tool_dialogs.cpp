// SPDX-License-Identifier: MIT
// The dialogs of tool settings: for a tool that is about to run, and for an Action of a PowerButton.
#include "search/ui/frmSearch.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/desktop_dialogs.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "text/ui/dlgBullet.h"
#include "text/ui/dlgIndent.h"
#include "text/ui/dlgNumLines.h"
#include "text/ui/dlgNumberStyle.h"
#include "text/ui/dlgRemLines.h"
#include "text/ui/dlgWordWrap.h"

#include <type_traits>
#include <utility>

namespace tolvo {

namespace {

/// What a dialog is for.
template <class Dialog>
using SettingsOf = decltype(std::declval<const Dialog &>().settings());

/// Dialogs with a sample borrow the text engine, one has a message of its own.
template <class Dialog, class Settings>
Dialog makeDialog(const Settings &settings, const frmMain &session, MessageBoxes &boxes, QWidget *parent) {
    if constexpr (std::is_constructible_v<Dialog, const cTextMethods &, const Settings &, QWidget *>)
        return Dialog(session.oTextMethods, settings, parent);
    else if constexpr (std::is_constructible_v<Dialog, MessageBoxes &, const Settings &, QWidget *>)
        return Dialog(boxes, settings, parent);
    else
        return Dialog(settings, parent);
}

} // namespace

template <class Dialog, class Settings, class Use>
auto DesktopDialogs::withDialog(const Settings &settings, Use use) {
    Dialog dialog = makeDialog<Dialog>(settings, *m_session, m_services.boxes, &m_parent);
    if constexpr (requires { dialog.setSampleFont(Font()); })
        dialog.setSampleFont(m_session->currentFont());
    return use(dialog);
}

template <class Dialog, class Settings>
bool DesktopDialogs::askInDialog(Settings &settings) {
    return withDialog<Dialog>(settings, [&settings](auto &dialog) {
        if (dialog.exec() != QDialog::Accepted)
            return false;
        settings = dialog.settings();
        return true;
    });
}

template <class Dialog>
std::optional<QString> DesktopDialogs::editSettings(const QString &details) {
    // What the string leaves open is as the tool was used last; what is edited here stays out of that.
    return withDialog<Dialog>(m_session->toolSettings().get<SettingsOf<Dialog>>(),
                              [&](auto &dialog) -> std::optional<QString> {
                                  QString edited = details;
                                  if (!tolvo::getSettings(dialog, edited, m_services.boxes))
                                      return std::nullopt;
                                  return edited;
                              });
}

bool DesktopDialogs::ask(IndentSettings &settings) {
    return askInDialog<dlgIndent>(settings);
}

bool DesktopDialogs::ask(WordWrapSettings &settings) {
    return askInDialog<dlgWordWrap>(settings);
}

bool DesktopDialogs::ask(RemoveLinesSettings &settings) {
    return askInDialog<dlgRemLines>(settings);
}

bool DesktopDialogs::ask(BulletSettings &settings) {
    return askInDialog<dlgBullet>(settings);
}

bool DesktopDialogs::ask(NumberListSettings &settings) {
    return askInDialog<dlgNumberStyle>(settings);
}

bool DesktopDialogs::ask(LineNumberSettings &settings) {
    return askInDialog<dlgNumLines>(settings);
}

std::optional<QString> DesktopDialogs::getSettings(const QString &token, const QString &details) {
    using Edit = std::optional<QString> (DesktopDialogs::*)(const QString &);
    static const QHash<QString, Edit> edits{
        {QStringLiteral("foIND"), &DesktopDialogs::editSettings<dlgIndent>},
        {QStringLiteral("foUNI"), &DesktopDialogs::editSettings<dlgIndent>},
        {QStringLiteral("foWRP"), &DesktopDialogs::editSettings<dlgWordWrap>},
        {QStringLiteral("foREM"), &DesktopDialogs::editSettings<dlgRemLines>},
        {QStringLiteral("liBUL"), &DesktopDialogs::editSettings<dlgBullet>},
        {QStringLiteral("liNUM"), &DesktopDialogs::editSettings<dlgNumberStyle>},
        {QStringLiteral("liREN"), &DesktopDialogs::editSettings<dlgNumLines>},
        {QStringLiteral("edSRC"), &DesktopDialogs::editSearch},
        {QStringLiteral("edREP"), &DesktopDialogs::editReplace},
        {QStringLiteral("chSPE"), &DesktopDialogs::editLanguage},
        {QStringLiteral("chGRA"), &DesktopDialogs::editLanguage}};
    const Edit edit = edits.value(token);
    return edit ? (this->*edit)(details) : std::nullopt;
}

std::optional<QString> DesktopDialogs::editSearch(const QString &details) {
    QString settings = details;
    return searchForm().getSettings(settings, false) ? std::optional(settings) : std::nullopt;
}

std::optional<QString> DesktopDialogs::editReplace(const QString &details) {
    QString settings = details;
    return searchForm().getSettings(settings, true) ? std::optional(settings) : std::nullopt;
}

std::optional<QString> DesktopDialogs::editLanguage(const QString &details) {
    QString settings = details;
    return languageForm().getSettings(settings) ? std::optional(settings) : std::nullopt;
}

} // namespace tolvo
