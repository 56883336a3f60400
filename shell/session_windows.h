// SPDX-License-Identifier: MIT
// What the session asks of windows. The main window implements these with dialogs, tolvo-pipe and the tests
// in their own way.
#pragma once

#include "platform/font.h"
#include "search/search_request.h"
#include "text/statistics.h"
#include "text/tool_settings.h"

#include <QString>

namespace tolvo {

/// The dialogs of tool settings.
class ToolDialogs {
  public:
    virtual ~ToolDialogs() = default;
    /// False if the user cancelled; otherwise the settings are the user's.
    virtual bool ask(ToolSettings &settings) = 0;
};

/// frmSearch, as the session uses it.
class SearchWindow {
  public:
    virtual ~SearchWindow() = default;
    virtual void setSearchText(const QString &text) = 0;
    [[nodiscard]] virtual QString searchText() = 0;
    virtual void setSpecialChars(bool on) = 0;
    [[nodiscard]] virtual bool specialChars() = 0;
    virtual void expandDialog() = 0;
    virtual void showDialog(bool bReplace) = 0;
    virtual void cmdSearch_Click() = 0;
    /// What its controls hold, as last used.
    [[nodiscard]] virtual SearchRequest request() = 0;
    /// A search changed the direction that the next one takes: the option buttons follow.
    virtual void setDirection(SearchDirection direction) = 0;
};

/// What dlgConfirmClose answers.
enum class CloseAnswer { Cancel = 2, Discard = 6, CopyAndClose = 7 };

/// The other windows of a session.
class SessionWindows {
  public:
    virtual ~SessionWindows() = default;

    /// dlgConfirmClose with its prompt.
    [[nodiscard]] virtual CloseAnswer confirmClose(const QString &prompt) = 0;
    virtual void showOptions() = 0;
    virtual void showAbout() = 0;
    virtual void showStatistics(const TextStatistics &statistics) = 0;
    /// frmPowerButton for the button of an index from 0; returns when it is closed.
    virtual void editPowerButton(int index) = 0;
    [[nodiscard]] virtual SearchWindow &search() = 0;
    [[nodiscard]] virtual ToolDialogs &toolDialogs() = 0;
};

/// The main window itself, as the session changes it.
class SessionView {
  public:
    virtual ~SessionView() = default;
    virtual void statusChanged(const QString &text) = 0;
    virtual void undoRedoChanged(bool undoEnabled, bool redoEnabled) = 0;
    /// Shows txtTextWW (wrapped) or txtText1 and hides the other.
    virtual void showTextBox(bool wrapped) = 0;
    /// The font of txtTextWW (wrapped) or txtText1.
    virtual void setTextFont(bool wrapped, const Font &font) = 0;
    [[nodiscard]] virtual Font textFont(bool wrapped) const = 0;
    /// Hides the window: the session is over.
    virtual void hide() = 0;
    virtual void bringToFront() = 0;
    virtual void processEvents() = 0;
    virtual void powerButtonChanged(int index) = 0;
    /// True if the user wants a long search to end (Esc); asked now and then.
    [[nodiscard]] virtual bool interrupted() { return false; }
};

} // namespace tolvo
