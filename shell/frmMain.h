// SPDX-License-Identifier: MIT
// The session: the text in use, the flags, the tools. No widget in it; ui/MainWindow shows it, tolvo-pipe
// runs it without a window.
#pragma once

#include "platform/clipboard.h"
#include "platform/font.h"
#include "platform/message_box.h"
#include "platform/report_error.h"
#include "platform/sound.h"
#include "platform/text_box.h"
#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"
#include "search/CSearch.h"
#include "shell/cUndo.h"
#include "shell/cut_notice.h"
#include "shell/selection_tools.h"
#include "shell/session_services.h"
#include "shell/session_windows.h"
#include "shell/text_history.h"
#include "shell/tool_change.h"
#include "shell/tool_settings_memory.h"
#include "text/cTextMethods.h"
#include "text/file_extensions.h"

#include <QList>
#include <QString>
#include <array>
#include <functional>
#include <memory>
#include <optional>

namespace tolvo {

class cToolbox;
struct ToolCall;
struct ToolRow;
struct WordOptions;

/// Every procedure that an event may call is guarded: a failure inside it is shown as the error report, and
/// the session goes on. A tool that fails leaves the text as it was.
class frmMain : private SearchHost, private ProofingHost {
  public:
    /// `txtText1` shows lines as they are, `txtTextWW` wraps them. Starts in txtText1.
    frmMain(const SessionServices &services, TextBox &txtText1, TextBox &txtTextWW);
    ~frmMain() override;
    frmMain(const frmMain &) = delete;
    frmMain &operator=(const frmMain &) = delete;

    // State that is public in the whole program

    [[nodiscard]] TextBox &txtCurrent() override { return *m_txtCurrent; }
    [[nodiscard]] const QString &labStatus() const { return m_status; }
    void setStatus(const QString &text) override;
    /// Shows a box with the application's title.
    void say(const QString &text, BoxIcon icon = BoxIcon::Information);
    [[nodiscard]] bool bDirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    bool bRightButton = false; ///< the next tool runs with its last settings, without its dialog
    bool bSounds = true;
    bool bWordWrap = false;
    bool bSessionOver = false;  ///< the window was hidden or unloaded; the run goes on with its end
    int iShiftState = 0;        ///< ShiftState bits (keyboard.h) as the last key event left them
    QString sLastTool;          ///< token of the tool last run, or "PB" and the index of a PowerButton
    std::array<Font, 2> aFonts; ///< 0 the proportional display font, 1 the fixed one
    bool bFontUseProp = true;   ///< the first font option of the Options
    cTextMethods oTextMethods;
    cUndo oUndo;
    CSearch oSearch;
    [[nodiscard]] const SessionServices &services() const { return m_services; }
    [[nodiscard]] ToolSettingsMemory &toolSettings() { return m_toolSettings; }
    /// What runToolRow() needs for a tool that runs at once.
    [[nodiscard]] ToolCall toolCall(const CAction *action = nullptr);
    /// How often a tool has warned of something or refused its text so far.
    [[nodiscard]] int warnings() const { return m_warnings; }

    /// The text as it stands becomes a state of oUndo.
    void pushUndo() { m_history.push(textState(txtCurrent())); }
    /// Around a change of the text that is no state of its own: Ctrl-Z takes it back by itself.
    void noteText() { m_history.note(textState(txtCurrent())); }
    [[nodiscard]] TextHistory &history() { return m_history; }

    // The session (session.cpp)

    /// Chooses the text box in use without moving any text, as the start does.
    void useTextBox(bool wrapped);
    /// Takes over what the text tools need of the Options: top level domains and file extensions.
    void useWordOptions(const WordOptions &options);
    /// Takes the clipboard's text into the text box, with its message if it is too long; `bDirty` and undo
    /// are left to the caller. If the clipboard doesn't answer, the text stays and the status line says so.
    void takeClipboard();
    /// Takes a text into the text box; with `tellOfCut` says first that the clipboard holds too much.
    void takeText(const QString &text, bool tellOfCut);
    /// A text file takes the place of the text, as a step that undo takes back; of several the first does. A
    /// file that is no text is refused with a message.
    void takeFiles(const QStringList &paths);
    /// What would be pasted, with `selection` by the middle mouse button; nothing if the clipboard doesn't
    /// answer, which the status line then says.
    [[nodiscard]] std::optional<QString> clipboardText(bool selection = false);
    /// Clipboard intake as the start does it: the text, the bottom state of undo, nothing dirty.
    void beginWithClipboard();
    /// The present text becomes the bottom state of undo, with nothing dirty.
    void beginWithText();
    /// Copy and Close: the text goes to the clipboard, and the session is over.
    void cmdClose_Click();
    /// Ends the session; asks first if bDirty.
    void cmdCancel_Click();
    /// The close box: true if the window may go; the session is over then.
    [[nodiscard]] bool queryUnload();
    /// Replaces the text by that of the clipboard, as a step that undo takes back.
    void cmdRefresh_Click();
    /// The states of undo: back, and forward again.
    void cmdUndo_Click();
    void cmdRedo_Click();
    /// To before the last run of a PowerButton, whatever has come after it.
    void undoPowerButton();
    /// To a place of the history: TextHistory::goTo().
    void goInHistory(int place);
    /// What undo can take back and redo can bring back.
    [[nodiscard]] QList<TextHistory::Entry> historyBehind();
    [[nodiscard]] QList<TextHistory::Entry> historyAhead();
    /// Takes back the last word that was typed, quick edit or tool (Ctrl-Z).
    void undoStep();
    /// Inverts bWordWrap.
    void imgWordwrap_Click();
    /// Shows the text wrapped or not and stores the choice; text, selection and bDirty stay.
    void toggleWordwrap(bool bOn);
    /// Opens the Options; with bRightButton it swaps the two fonts instead.
    void imgOptions_Click();
    void imgAbout_Click();
    void imgHelp_Click();
    /// The paste check of Ctrl-V: false if the key must be swallowed (the message has been shown).
    [[nodiscard]] bool mayPaste();
    /// Gives the text box in use the font that bFontUseProp chooses.
    void applyFonts();
    /// The font that the text shows in.
    [[nodiscard]] Font currentFont() const;

    // Tools (tool_frame.cpp)

    /// Runs a tool as a command of the user: counts it, and pushes the text before and after it to undo. An
    /// unknown token gives a box that says so.
    void ToolDespatcher(const QString &token);
    /// A click on a row of the panel or on its mark.
    void lblToolbox_Click(cToolbox &oToolbox, int row);
    /// A click on a favourite: a token, or a composite of two tools (favourites in cToolbox.h).
    void imgFavourites_Click(const QString &tag);
    /// As extendSelectionToLines(), on the text in use.
    void ExtendSelectionToLines() { extendSelectionToLines(txtCurrent()); }
    /// As openSearchDialog(), from the text in use.
    void OpenSearchDialog(bool bReplace);
    /// F3: searches for what the search window holds, or opens it if that is nothing.
    void FindAgain();
    /// As runSearchAction().
    void RunSearchAction(bool bReplace, const CAction &action);

    // What tools have changed (tool_change.cpp)

    /// The last run of a tool or PowerButton that changed the text; nothing before the first.
    [[nodiscard]] const std::optional<ToolChange> &lastChange() const { return m_lastChange; }
    /// Shows the text as it stood before that run, for as long as the key is held.
    void showTextBefore();

    // PowerButtons (powerbutton_execution.cpp)

    /// Reads the eight from the store.
    void loadPowerButtons();
    /// Has their icons painted.
    void initIcons();
    /// Runs, or with bRightButton edits, the PowerButton of an index from 0.
    void imgPower_Click(int index);
    /// Adds a tool as the last step of the PowerButton of an index from 0 (powerbuttons/add_step.h).
    void addToPowerButton(int index, const QString &token);
    /// Runs one Action with its stored settings. Failures are reported and go no further.
    void PowerButtonDespatcher(const CAction &action);
    /// Runs Actions one after another, each the way that its tool and its dialog option say; `beforeEach` is
    /// called before each. A failure is reported and ends the run.
    void runActions(const QList<std::shared_ptr<CAction>> &actions, const std::function<void()> &beforeEach);

    /// Takes over the PowerButtons that the store has otherwise than the session, as another run of the
    /// program may have defined them, and has their icons painted. One that runs goes on as it was.
    void refreshPowerButtons();

    /// Shows what the store has to say of lost or refused writes, once.
    void reportTroubleOfStore();

    /// Runs `action` where an event enters: a failure that nothing else caught is reported under
    /// "frmMain" and the given procedure, and goes no further.
    template <class Action>
    void guarded(const char16_t *procedure, Action &&action);

  private:
    // SearchHost, ProofingHost
    void beginReplacing(const SearchRequest &request) override;
    void endReplacing() override;
    void warn(const QString &text, const QString &title) override;
    void directionChanged(SearchDirection direction) override;
    [[nodiscard]] SearchResults &results() override { return m_services.dialogs.searchResults(); }
    [[nodiscard]] bool interrupted() override;
    void processEvents() override;
    [[nodiscard]] const cTextMethods &textMethods() const override { return oTextMethods; }

    [[nodiscard]] cUndo::Hooks undoHooks();
    /// What is left of a tool that failed is taken back; then the failure goes on.
    template <class Action>
    void keepingText(Action &&action);
    void beep();
    [[nodiscard]] CloseAnswer askAboutChanges();
    void showOtherState(const std::function<bool(TextState &)> &walk);
    void swapFonts();
    void sayTooLong(const QString &what, qsizetype length);
    void hideWindow();
    void countTool(const QString &token);
    /// ToolDespatcher and imgPower_Click for callers inside the session: failures go on.
    void runTool(const QString &token);
    void runFavourite(const QString &tag);
    void runButton(int index);
    void runPowerButton(int index);
    void runAction(const CAction &action);
    /// Runs `action`; a PowerButton that runs itself ends it with a report, and with text, status, bDirty and
    /// undo as they were.
    template <class Action>
    void endingCycles(Action &&action);
    /// Around one run: `name` is what has changed the text, if anything has; true then.
    template <class Action>
    bool showingChange(const QString &name, Action &&action);
    bool noteChange(const ToolChange &change);
    [[nodiscard]] bool isToChangeText(const CPowerButton &button) const;
    [[nodiscard]] QString toolName(const QString &token) const;
    [[nodiscard]] QString favouriteName(const QString &tag) const;
    void runWithSettings(const CAction &action);
    void noteActionOf(const ToolRow &row, const ToolPtr &tool);
    void listenTo(TextBox &box);

    SessionServices m_services;
    TextHistory m_history;
    TextBox &m_txtText1;
    TextBox &m_txtTextWW;
    TextBox *m_txtCurrent;
    ToolSettingsMemory m_toolSettings;
    QString m_status;
    CutNotice m_cuts;
    std::optional<RunScope> m_replacing; ///< a replacement of the search window is under way
    std::optional<ToolChange> m_lastChange;
    QList<int> m_runningButtons; ///< indices of the PowerButtons that run, outermost first
    int m_warnings = 0;
    bool m_dirty = false;
    bool m_undoEnabled = false;
    bool m_redoEnabled = false;
};

template <class Action>
void frmMain::guarded(const char16_t *procedure, Action &&action) {
    m_cuts.commandBegins();
    reportFailures(m_services.boxes, QStringLiteral("frmMain"), QString::fromUtf16(procedure),
                   std::forward<Action>(action));
    m_cuts.commandEnds();
    reportTroubleOfStore();
}

template <class Action>
bool frmMain::showingChange(const QString &name, Action &&action) {
    const ToolChange change{textState(txtCurrent()), name};
    action();
    return noteChange(change);
}

template <class Action>
void frmMain::keepingText(Action &&action) {
    const TextState before = textState(txtCurrent());
    const bool dirty = m_dirty;
    const qint64 cut = m_cuts.pending();
    try {
        action();
    } catch (...) {
        restore(txtCurrent(), before);
        m_dirty = dirty;
        m_cuts.setPending(cut);
        throw;
    }
}

} // namespace tolvo
