// SPDX-License-Identifier: MIT
// The windows of tool settings: for a tool that is about to run, and for an Action of a PowerButton.
#include "search/ui/frmSearch.h"
#include "shell/pattern_operations.h"
#include "shell/tool_table.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/desktop_dialogs.h"
#include "shell/ui/window_preview.h"
#include "spelling/ui/dlgDicQuickList.h"
#include "text/ui/tool_dialogs.h"

namespace tolvo {

ToolDialogContext DesktopDialogs::toolDialogContext() {
    ToolDialogContext context{m_session->oTextMethods, m_services.boxes, &m_parent, m_session->currentFont()};
    context.choose = [this](const QString &text, const ToolSettings &settings) {
        return withPattern(text, settings, m_session->oTextMethods);
    };
    return context;
}

bool DesktopDialogs::askToolSettings(ToolSettings &settings) {
    ToolDialogContext context = toolDialogContext();
    const ToolRow *row = toolRow(m_session->sLastTool);
    std::optional<WindowPreview> preview;
    if (row)
        context.preview = &preview.emplace(*m_session, m_parent.changeView(), *row);
    return askInToolDialog(settings, context);
}

std::optional<QString> DesktopDialogs::getSettings(const QString &token, const QString &details) {
    const ToolRow *row = toolRow(token);
    switch (row ? row->operation.window : SettingsWindow::None) {
    case SettingsWindow::Dialog:
        // What the string leaves open is as the tool was used last; what is edited here stays out of that.
        return editInToolDialog(m_session->toolSettings().get(row->operation.settings()), details,
                                toolDialogContext());
    case SettingsWindow::Search:
        return editSearch(details, SearchRole::Search);
    case SettingsWindow::Replace:
        return editSearch(details, SearchRole::Replace);
    case SettingsWindow::CopyMatches:
        return editSearch(details, SearchRole::CopyMatches);
    case SettingsWindow::Language:
        return editLanguage(details);
    case SettingsWindow::PowerButton: // the editor has a window of its own for it
    case SettingsWindow::Missing:
    case SettingsWindow::None:
        break;
    }
    return std::nullopt;
}

std::optional<QString> DesktopDialogs::editSearch(const QString &details, SearchRole role) {
    QString settings = details;
    bool confirmed = false;
    frmSearch &search = searchWindow();
    m_docking.asWindow(search, [&] { confirmed = search.getSettings(settings, role); });
    return confirmed ? std::optional(settings) : std::nullopt;
}

std::optional<QString> DesktopDialogs::editLanguage(const QString &details) {
    QString settings = details;
    return languageForm().getSettings(settings) ? std::optional(settings) : std::nullopt;
}

} // namespace tolvo
