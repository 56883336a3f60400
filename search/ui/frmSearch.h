// SPDX-License-Identifier: MIT
#pragma once

#include "platform/message_box.h"
#include "search/CSearch.h"
#include "search/search_form.h"
#include "search/ui/live_search.h"
#include "search/ui/search_controls.h"

#include <QDialog>
#include <functional>
#include <memory>

namespace tolvo {

class SettingsStore;

/// The window for search and replace: not modal beside the main window, modal to collect the settings of a
/// search that runs later.
class frmSearch final : public QDialog, public SearchWindow {
    Q_OBJECT

  public:
    frmSearch(CSearch &oSearch, SettingsStore &store, MessageBoxes &boxes, QWidget *parent);
    ~frmSearch() override;

    // SearchWindow
    [[nodiscard]] SearchRequest request() override;
    void setSearchText(const QString &text) override;
    void setSpecialChars(bool on) override;
    void expandDialog() override;
    void showDialog(bool bReplace) override;
    void showCopyMatches() override;
    void cmdSearch_Click() override;

    /// As it is, with the focus in the search text.
    void showAgain();
    /// From here on the window, while it is shown, marks in a text what it finds.
    void watch(const WatchedText &text);
    void setDirection(SearchDirection direction);
    /// Fills the form from `settings`, lets the user change it, and writes it back. False, and `settings` as
    /// they were, if the user cancelled.
    bool getSettings(QString &settings, bool bReplace) {
        return getSettings(settings, bReplace ? SearchRole::Replace : SearchRole::Search);
    }
    bool getSettings(QString &settings, SearchRole role);
    /// Writes the state and the lists to the store.
    void saveState();

    /// Carries out a copy of all matches.
    std::function<void(const MatchCopy &)> onCopyMatches;

    std::function<void()> onShow;     ///< about to be shown, with its size
    std::function<void()> onFitted;   ///< the window has taken another size by itself
    std::function<void()> onSearched; ///< a command is over; the window may lie over what it has selected

    /// OK: refuses, with a message, a text that the settings can't hold.
    void accept() override;

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    void connectControls();
    void connectKeys();
    void connectOptions();
    void useRole(SearchRole role);
    void showButtons();
    void showRole(SearchRole role);
    void showForm();
    void readTexts();
    [[nodiscard]] SearchRequest presentRequest() const;
    void applyLiveRules();
    [[nodiscard]] QComboBox &listOf(SearchText text) const;
    void applyRules();
    void noteSizeOfUser();
    void fitSize();
    void run(const std::function<void()> &command);
    void resumeList() { m_lastList->resume(); }
    void toggleMore();
    void cmdReplace_Click();
    void cmdReplaceAll_Click();
    void cmdCopyMatches_Click();
    void swop();
    void ConvertToRegExp();

    CSearch &m_search;
    SettingsStore &m_store;
    MessageBoxes &m_boxes;
    SearchForm m_form;
    SearchControls m_controls;
    std::unique_ptr<LiveSearch> m_live; ///< while a text is watched
    SearchListEdit *m_lastList;
    QSize m_fittedSize;  ///< what the contents needed last
    QSize m_givenSize;   ///< what the window got for it
    QSize m_added{0, 0}; ///< by the user
    SearchRole m_role = SearchRole::Search;
    bool m_collecting = false; ///< getSettings is running
};

} // namespace tolvo
