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

namespace tolvo {

namespace {

/// Which dialog serves which settings.
template <class Settings>
struct DialogOf;
template <>
struct DialogOf<IndentSettings> {
    using type = dlgIndent;
};
template <>
struct DialogOf<WordWrapSettings> {
    using type = dlgWordWrap;
};
template <>
struct DialogOf<RemoveLinesSettings> {
    using type = dlgRemLines;
};
template <>
struct DialogOf<BulletSettings> {
    using type = dlgBullet;
};
template <>
struct DialogOf<NumberListSettings> {
    using type = dlgNumberStyle;
};
template <>
struct DialogOf<LineNumberSettings> {
    using type = dlgNumLines;
};

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

template <class Settings, class Use>
auto DesktopDialogs::withDialog(const Settings &settings, Use use) {
    using Dialog = typename DialogOf<Settings>::type;
    Dialog dialog = makeDialog<Dialog>(settings, *m_session, m_services.boxes, &m_parent);
    if constexpr (requires { dialog.setSampleFont(Font()); })
        dialog.setSampleFont(m_session->currentFont());
    return use(dialog);
}

template <class Settings>
bool DesktopDialogs::askInDialog(Settings &settings) {
    return withDialog(settings, [&settings](auto &dialog) {
        if (dialog.exec() != QDialog::Accepted)
            return false;
        settings = dialog.settings();
        return true;
    });
}

template <class Settings>
std::optional<QString> DesktopDialogs::editSettings(const QString &details) {
    // What the string leaves open is as the tool was used last; what is edited here stays out of that.
    return withDialog(m_session->toolSettings().get<Settings>(),
                      [&details](auto &dialog) -> std::optional<QString> {
                          QString edited = details;
                          if (!tolvo::getSettings(dialog, edited))
                              return std::nullopt;
                          return edited;
                      });
}

bool DesktopDialogs::ask(IndentSettings &settings) {
    return askInDialog(settings);
}

bool DesktopDialogs::ask(WordWrapSettings &settings) {
    return askInDialog(settings);
}

bool DesktopDialogs::ask(RemoveLinesSettings &settings) {
    return askInDialog(settings);
}

bool DesktopDialogs::ask(BulletSettings &settings) {
    return askInDialog(settings);
}

bool DesktopDialogs::ask(NumberListSettings &settings) {
    return askInDialog(settings);
}

bool DesktopDialogs::ask(LineNumberSettings &settings) {
    return askInDialog(settings);
}

std::optional<QString> DesktopDialogs::getSettings(const QString &token, const QString &details) {
    using Edit = std::optional<QString> (DesktopDialogs::*)(const QString &);
    static const QHash<QString, Edit> edits{
        {QStringLiteral("foIND"), &DesktopDialogs::editSettings<IndentSettings>},
        {QStringLiteral("foUNI"), &DesktopDialogs::editSettings<IndentSettings>},
        {QStringLiteral("foWRP"), &DesktopDialogs::editSettings<WordWrapSettings>},
        {QStringLiteral("foREM"), &DesktopDialogs::editSettings<RemoveLinesSettings>},
        {QStringLiteral("liBUL"), &DesktopDialogs::editSettings<BulletSettings>},
        {QStringLiteral("liNUM"), &DesktopDialogs::editSettings<NumberListSettings>},
        {QStringLiteral("liREN"), &DesktopDialogs::editSettings<LineNumberSettings>},
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
