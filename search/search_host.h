// SPDX-License-Identifier: MIT
// What a search asks of its surroundings. Beneath it there may be a window, tolvo-pipe or a test.
#pragma once

#include "platform/text_box.h"
#include "search/result_lines.h"
#include "search/search_request.h"

#include <QString>

namespace tolvo {

/// The list of a Find All, one line per hit with its packed location (result_lines.h).
class SearchResults {
  public:
    virtual ~SearchResults() = default;
    /// Empties the list.
    virtual void clear() = 0;
    virtual void add(const HitLine &line, qint32 location) = 0;
    virtual void setCaption(const QString &caption) = 0;
    /// Shows the list, modally: it returns once the list is closed.
    virtual void show() = 0;
};

/// frmSearch, as the session uses it. It is shown without a lock on the main window.
class SearchWindow {
  public:
    virtual ~SearchWindow() = default;
    /// What its controls hold, as last used.
    [[nodiscard]] virtual SearchRequest request() = 0;
    virtual void setSearchText(const QString &text) = 0;
    virtual void setSpecialChars(bool on) = 0;
    /// Makes the larger layout if it isn't there.
    virtual void expandDialog() = 0;
    /// Shows the window for replacing or for searching only, and puts it in front.
    virtual void showDialog(bool bReplace) = 0;
    /// Shows the window for copying all matches.
    virtual void showCopyMatches() = 0;
    /// Searches for what the controls hold.
    virtual void cmdSearch_Click() = 0;
};

class SearchHost {
  public:
    virtual ~SearchHost() = default;
    /// The text box in use.
    [[nodiscard]] virtual TextBox &txtCurrent() = 0;
    /// A search changed the direction that the next one takes (the option buttons of the search window).
    virtual void directionChanged(SearchDirection direction) = 0;
    [[nodiscard]] virtual SearchResults &results() = 0;
    /// Called before and after each replacement that the user asks for in the search window, which is a step
    /// of undo.
    virtual void beginReplacing(const SearchRequest &) {}
    virtual void endReplacing() {}
    /// True if the user wants a long search to end; asked now and then.
    [[nodiscard]] virtual bool interrupted() { return false; }
};

} // namespace tolvo
