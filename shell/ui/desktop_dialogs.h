// SPDX-License-Identifier: MIT
#pragma once

#include "powerbuttons/action_settings.h"
#include "search/ui/frmSearch.h"
#include "shell/modMain.h"
#include "shell/ui/desktop_options.h"
#include "shell/ui/search_docking.h"

#include <memory>
#include <optional>

namespace tolvo {

class EditorEffects;
class MainWindow;
class SearchResultsWindow;
class dlgDicQuickList;
class dlgSpelling;
class frmPowerButton;
struct ToolDialogContext;

/// The dialogs of a session, each made at its first use.
class DesktopDialogs : public SessionDialogs, private ActionSettings {
  public:
    DesktopDialogs(const RunServices &services, MainWindow &parent);
    ~DesktopDialogs() override;

    /// The session that the dialogs serve. To be called before any other operation.
    void attach(frmMain &session);
    /// Each dialog that was used saves its section of the store and goes away.
    void unload();

    // SessionDialogs
    bool askToolSettings(ToolSettings &settings) override;
    [[nodiscard]] CloseAnswer confirmClose(const QString &prompt) override;
    void showOptions() override;
    void showAbout() override;
    void showStatistics(const TextStatistics &statistics) override;
    void editPowerButton(int index) override;
    int GetLangID(int LangID, bool save) override;
    bool CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar) override;
    [[nodiscard]] frmSearch &searchWindow() override;
    void showSearchDirection(SearchDirection direction) override;
    [[nodiscard]] SearchResults &searchResults() override;

  private:
    // ActionSettings
    std::optional<QString> getSettings(const QString &token, const QString &details) override;

    [[nodiscard]] QString manualFolder() const;
    [[nodiscard]] ToolDialogContext toolDialogContext();
    std::optional<QString> editSearch(const QString &details, SearchRole role);
    std::optional<QString> editLanguage(const QString &details);
    void prepareOptions();
    void configureProvider(int provider);
    void editOwnWords();
    void keepSearchClear();
    void copyMatchesOfWindow(const MatchCopy &copy);
    void takeFocusBack();
    [[nodiscard]] dlgDicQuickList &languageForm();

    RunServices m_services;
    MainWindow &m_parent;
    frmMain *m_session = nullptr;
    std::optional<DesktopOptions> m_options;
    // The dialogs; the main window is their parent, and they go before it.
    std::unique_ptr<dlgPreferences> m_preferences;
    std::unique_ptr<EditorEffects> m_editorEffects;
    std::unique_ptr<frmPowerButton> m_powerButtonEditor;
    std::unique_ptr<dlgSpelling> m_spellingDialog;
    std::unique_ptr<dlgDicQuickList> m_languageDialog;
    std::unique_ptr<SearchResultsWindow> m_results;
    std::unique_ptr<frmSearch> m_search;
    SearchDocking m_docking;
    bool m_searchIsPlaced = false; ///< by the user, or beside the text
};

} // namespace tolvo
