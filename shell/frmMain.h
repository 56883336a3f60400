// SPDX-License-Identifier: MIT
// The session: the text in use, the flags, the tools. No widget in it; ui/MainWindow shows it, tolvo-pipe
// runs it without a window.
#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/font.h"
#include "platform/message_box.h"
#include "platform/processes.h"
#include "platform/sound.h"
#include "platform/text_box.h"
#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/catalogue.h"
#include "preferences/file_extensions.h"
#include "preferences/settings_store.h"
#include "search/CSearch.h"
#include "shell/cUndo.h"
#include "shell/session_windows.h"
#include "shell/tool_settings_memory.h"
#include "spelling/Proofing.h"
#include "text/cTextMethods.h"

#include <QString>
#include <array>
#include <memory>

namespace tolvo {

/// What a session is built on. All outlive it.
struct SessionServices {
    SettingsStore &store;
    Clipboard &clipboard;
    MessageBoxes &boxes;
    SoundPlayer &sound;
    FileExtensions &extensions;
    const Catalogue &oTools;
    CPowerButtonCollection &oPowerButtons;
    SessionWindows &windows;
    SessionView &view;
    SpellingWalk &spellingWalk;
    LanguageChooser &languages;
};

/// Bits of iShiftState.
enum ShiftState { Shift = 1, Ctrl = 2, Alt = 4 };

class frmMain : private TextHost, private SearchHost, private ProofingHost {
  public:
    /// `txtText1` shows lines as they are, `txtTextWW` wraps them. Starts in txtText1.
    frmMain(const SessionServices &services, TextBox &txtText1, TextBox &txtTextWW, SearchResults &results);
    ~frmMain() override;

    // State that is public in the whole program

    [[nodiscard]] TextBox &txtCurrent() override { return *m_txtCurrent; }
    [[nodiscard]] const QString &labStatus() const { return m_status; }
    void setStatus(const QString &text) override;
    [[nodiscard]] bool bDirty() const { return m_dirty; }
    void setDirty(bool dirty) { m_dirty = dirty; }
    bool bRightButton = false; ///< the next tool runs with its last settings, without its dialog
    bool bSounds = true;
    bool bWordWrap = false;
    bool bSessionOver = false;  ///< the window was hidden or unloaded; the run goes on with its end
    int iShiftState = 0;        ///< ShiftState bits as the last key event left them
    QString sLastTool;          ///< token of the tool last run, or "PB" and the index of a PowerButton
    std::array<Font, 2> aFonts; ///< 0 the proportional display font, 1 the fixed one
    bool bFontUseProp = true;   ///< the first font option of the Options
    cTextMethods oTextMethods;
    cUndo oUndo;
    /// Made when first needed.
    [[nodiscard]] CSearch &oSearch();
    [[nodiscard]] const SessionServices &services() const { return m_services; }
    [[nodiscard]] ToolSettingsMemory &toolSettings() { return m_toolSettings; }

    // The session (session.cpp)

    /// Chooses the text box in use without moving any text, as the start does.
    void useTextBox(bool wrapped);
    /// Clipboard intake with its message; `bDirty` is left to the caller.
    void takeClipboard();
    void cmdClose_Click();
    void cmdCancel_Click();
    /// The close box: true if the window may go.
    [[nodiscard]] bool queryUnload();
    void cmdRefresh_Click();
    void cmdUndo_Click();
    void cmdRedo_Click();
    void imgWordwrap_Click();
    void toggleWordwrap(bool bOn);
    void imgOptions_Click();
    void imgAbout_Click();
    void imgHelp_Click();
    /// The paste check of Ctrl-V: false if the key must be swallowed (the message has been shown).
    [[nodiscard]] bool mayPaste();
    /// Shows a font in the text box in use and remembers the option.
    void applyFonts();

    // Tools (tool_frame.cpp, tool_table.cpp, moving_lines.cpp, spelling_tools.cpp, search_tools.cpp)

    void ToolDespatcher(const QString &token);
    void imgFavourites_Click(const QString &tag);
    void ExtendSelectionToLines();
    void OpenSearchDialog(bool bReplace);
    void FindAgain();
    void RunSearchAction(bool bReplace, const CAction &action);

    // PowerButtons (powerbutton_execution.cpp)

    /// Runs, or with bRightButton edits, the PowerButton of an index from 0.
    void imgPower_Click(int index);
    void PowerButtonDespatcher(const CAction &action);

  private:
    friend class ToolHandlers;
    friend class KeyboardCommands;

    // TextHost, SearchHost, ProofingHost
    void warn(const QString &text, const QString &title) override;
    void directionChanged(SearchDirection direction) override;
    [[nodiscard]] SearchResults &results() override { return m_results; }
    void processEvents() override;

    [[nodiscard]] TextState textState() const;
    void pushUndo() { oUndo.Push(textState()); }
    void restore(const TextState &state);
    void hideWindow();

    SessionServices m_services;
    TextBox &m_txtText1;
    TextBox &m_txtTextWW;
    TextBox *m_txtCurrent;
    SearchResults &m_results;
    std::unique_ptr<CSearch> m_search;
    ToolSettingsMemory m_toolSettings;
    QString m_status;
    bool m_dirty = false;
    int m_powerButtonDepth = 0;
};

} // namespace tolvo
