// SPDX-License-Identifier: MIT
// How the session reaches search and replace: the search window, and the searches of PowerButtons.
#pragma once

namespace tolvo {

class CAction;
class CSearch;
class SearchWindow;
class TextBox;
struct MatchCopy;
struct ToolCall;

/// The tools edSRC and edREP. An Action searches as its settings say, a step of a PowerButton with the last
/// settings as the search window does, without showing it; any other call shows the window.
void runSearchTool(const ToolCall &call, bool replace);

/// The tool edCPM: copies all matches to the clipboard or in place of the text, and says how many. An Action
/// copies as its settings say, a step of a PowerButton with the last settings; any other call shows the
/// search window.
void copyMatches(const ToolCall &call);
/// Copies all matches as `copy` says, whatever the call brings. Nothing for an empty search text.
void copyMatches(const ToolCall &call, const MatchCopy &copy);

/// Shows the search window. A selection of 1 to 24 units becomes its search text, with tabs, line ends and
/// other control characters as escapes.
void openSearchDialog(SearchWindow &window, const TextBox &box, bool replace);

/// Searches or replaces as the settings of an Action say. Fails for a mode that doesn't exist.
void runSearchAction(CSearch &search, bool replace, const CAction &action);

} // namespace tolvo
