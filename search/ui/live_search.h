// SPDX-License-Identifier: MIT
// The search window's answer while a search is being written: marks in the text, words beside the box, and
// what a replacement would do.
#pragma once

#include "platform/desktop/PlainTextBox.h"
#include "search/live_search.h"
#include "search/ui/mistake_mark.h"

#include <QObject>
#include <QTimer>
#include <array>
#include <functional>

namespace tolvo {

class SettingsStore;
struct SearchControls;

/// The text that the window searches, and a thread to look at it. All outlive who looks.
struct WatchedText {
    std::array<PlainTextBox *, 2> boxes;
    std::function<PlainTextBox &()> shown; ///< the one in use
    BackgroundWorker &worker;
};

/// Follows the controls, the text, its selection and its scroll bars for as long as the window is shown. It
/// never changes the text, and nothing of it stays when the window is hidden.
class LiveSearch final : public QObject {
  public:
    enum class Role {
        Searching,
        Replacing,
        Collecting ///< no text is searched; what is wrong with a pattern is said
    };

    /// `request` reads the controls. All outlive this but for the controls' window, which owns it.
    LiveSearch(SearchControls &controls, QDialog &window, const WatchedText &text, SettingsStore &store,
               std::function<SearchRequest()> request);
    ~LiveSearch() override;

    /// The request or the role may have changed: answers soon.
    void ask(Role role);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void followControls();
    void followText();
    void askSoon();
    void ask();
    void answer(const LiveAnswer &answer);
    void textChanged();
    void end();
    void clearMarks();
    void showMatches();
    void showPlace();
    void showTrouble(qsizetype inFind);
    void say(const QString &words);
    void previewSoon();
    void preview();
    void choose(RegularExpression::Span place);
    [[nodiscard]] RegularExpression::Span selection() const;

    SearchControls &m_controls;
    QDialog &m_window;
    WatchedText m_text;
    SettingsStore &m_store;
    std::function<SearchRequest()> m_request;
    Role m_role = Role::Searching;

    BackgroundJob m_search;
    BackgroundJob m_preview;
    QTimer m_pause; ///< in the typing
    QTimer m_late;  ///< the answer takes long
    QTimer m_view;  ///< what is in sight has changed
    LiveQuestion m_question;
    std::optional<LiveAnswer> m_answer; ///< to the question, while it is true
    MistakeMark m_mistakeInFind;
    MistakeMark m_mistakeInReplacement;
};

} // namespace tolvo
