// SPDX-License-Identifier: MIT
// The dialogs of a session, each made at its first use.
#pragma once

#include "powerbuttons/action_settings.h"
#include "shell/modMain.h"
#include "shell/ui/desktop_options.h"

#include <memory>
#include <optional>

namespace tolvo {

class MainWindow;
class dlgDicQuickList;
class dlgPreferences;
class dlgSpelling;
class frmPowerButton;
class frmSearch;
struct ToolDialogContext;
class SearchResultsWindow;

class DesktopDialogs : public ToolDialogs, private SearchWindow, private ActionSettings {
  public:
    DesktopDialogs(const RunServices &services, MainWindow &parent);
    ~DesktopDialogs() override;

    void attach(frmMain &session);
    /// Each dialog that was used saves its section of the store and goes away.
    void unload();

    // ToolDialogs

    bool ask(ToolSettings &settings) override;

    [[nodiscard]] SearchWindow &search() { return *this; }
    [[nodiscard]] SearchResults &searchResults();
    [[nodiscard]] SpellingWalk &spellingWalk() { return m_spelling; }
    [[nodiscard]] LanguageChooser &languages() { return m_languages; }

    void showOptions();
    void showAbout();
    void showStatistics(const TextStatistics &statistics);
    void editPowerButton(int index);

  private:
    // SearchWindow

    void setSearchText(const QString &text) override;
    [[nodiscard]] QString searchText() override;
    void setSpecialChars(bool on) override;
    [[nodiscard]] bool specialChars() override;
    void expandDialog() override;
    void showDialog(bool bReplace) override;
    void cmdSearch_Click() override;
    SearchRequest request() override;
    void setDirection(SearchDirection direction) override;

    // ActionSettings

    std::optional<QString> getSettings(const QString &token, const QString &details) override;
    [[nodiscard]] ToolDialogContext toolDialogContext();
    std::optional<QString> editSearch(const QString &details, bool replace);
    std::optional<QString> editLanguage(const QString &details);

    void prepareOptions();
    void configureProvider(int provider);
    void takeKeysBack();
    [[nodiscard]] frmSearch &searchForm();
    [[nodiscard]] dlgDicQuickList &languageForm();

    /// dlgSpelling and dlgDicQuickList are made at the first check, not when the session is built.
    struct LateSpelling : SpellingWalk {
        explicit LateSpelling(DesktopDialogs &owner) : m_owner(owner) {}
        bool CheckSpelling(ProofingHost &host, QString &text, int LangID, bool grammar) override;
        DesktopDialogs &m_owner;
    };
    struct LateLanguages : LanguageChooser {
        explicit LateLanguages(DesktopDialogs &owner) : m_owner(owner) {}
        int GetLangID(int LangID, bool save) override;
        DesktopDialogs &m_owner;
    };

    RunServices m_services;
    MainWindow &m_parent;
    frmMain *m_session = nullptr;
    LateSpelling m_spelling{*this};
    LateLanguages m_languages{*this};
    DesktopOptions m_options;
    std::unique_ptr<CPowerButtonMethods> m_powerButtonMethods;
    // The dialogs; the main window is their parent, and they go before it.
    std::unique_ptr<dlgPreferences> m_preferences;
    std::unique_ptr<frmPowerButton> m_powerButtonEditor;
    std::unique_ptr<dlgSpelling> m_spellingDialog;
    std::unique_ptr<dlgDicQuickList> m_languageDialog;
    std::unique_ptr<SearchResultsWindow> m_results;
    std::unique_ptr<frmSearch> m_search;
};

} // namespace tolvo
