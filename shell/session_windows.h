// SPDX-License-Identifier: MIT
// What the session asks of windows. On the desktop ui/ answers with the main window and its dialogs; without
// one headless/ does, for tolvo-pipe and the tests.
#pragma once

#include "platform/font.h"
#include "search/search_host.h"
#include "spelling/Proofing.h"
#include "text/statistics.h"
#include "text/tool_settings.h"

#include <QString>

namespace tolvo {

struct ToolChange;

/// The main window, as the session changes it.
class SessionView {
  public:
    virtual ~SessionView() = default;
    virtual void statusChanged(const QString &text) = 0;
    /// Shows a hint beside the status; an empty status takes it away.
    virtual void hintChanged(const QString &) {}
    /// A tool or PowerButton has changed the text: shows where, until the user goes on.
    virtual void toolChangedText(const ToolChange &) {}
    /// Shows the text before that change while a key is held; null: no tool has changed anything so far.
    virtual void showTextBefore(const ToolChange *) {}
    virtual void undoRedoChanged(bool undoEnabled, bool redoEnabled) = 0;
    /// Shows txtTextWW (wrapped) or txtText1 and hides the other.
    virtual void showTextBox(bool wrapped) = 0;
    /// The font of txtTextWW (wrapped) or txtText1.
    virtual void setTextFont(bool wrapped, const Font &font) = 0;
    [[nodiscard]] virtual Font textFont(bool wrapped) const = 0;
    /// The session is over: hides the window.
    virtual void endSession() = 0;
    virtual void bringToFront() = 0;
    /// Lets the window be painted; input waits.
    virtual void processEvents() = 0;
    /// The PowerButton of an index from 0 is another one, or has another icon or name.
    virtual void powerButtonChanged(int index) = 0;
    /// True if the user wants a long search to end (Esc); asked now and then.
    [[nodiscard]] virtual bool interrupted() { return false; }
};

/// What dlgConfirmClose answers.
enum class CloseAnswer { Cancel = 2, Discard = 6, CopyAndClose = 7 };

/// The dialogs of the session, the search window among them. All but that one are modal: the call returns
/// when the user has closed them.
class SessionDialogs : public SpellingWalk {
  public:
    /// Asks for the settings of a tool, beginning with those given. False if the user cancelled.
    virtual bool askToolSettings(ToolSettings &settings) = 0;
    /// dlgConfirmClose with its prompt.
    [[nodiscard]] virtual CloseAnswer confirmClose(const QString &prompt) = 0;
    virtual void showOptions() = 0;
    virtual void showAbout() = 0;
    virtual void showStatistics(const TextStatistics &statistics) = 0;
    /// frmPowerButton for the button of an index from 0.
    virtual void editPowerButton(int index) = 0;
    /// Shows the list of languages. Gives the number of the chosen one, or languageCancelled. `LangID` is
    /// selected at first; languageCancelled stands for the stored one. `save` stores the choice.
    virtual int GetLangID(int LangID, bool save) = 0;
    /// Made at the first call.
    [[nodiscard]] virtual SearchWindow &searchWindow() = 0;
    /// The search window, if it has been made, shows the direction that the next search takes.
    virtual void showSearchDirection(SearchDirection direction) = 0;
    /// The list of a Find All.
    [[nodiscard]] virtual SearchResults &searchResults() = 0;
};

} // namespace tolvo
