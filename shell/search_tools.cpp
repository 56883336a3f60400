// SPDX-License-Identifier: MIT
#include "shell/search_tools.h"

#include "powerbuttons/CAction.h"
#include "search/CSearch.h"
#include "search/escaped_text.h"
#include "shell/session_windows.h"
#include "shell/tool_call.h"

namespace tolvo {

namespace {

constexpr int longestSeed = 24; ///< a longer selection is text to work on, not text to look for

void runInOneStep(CSearch &search, bool replace, const SearchRequest &request) {
    search.run(request.verb(replace), request, SearchedBy::PowerButton);
}

} // namespace

void runSearchTool(const ToolCall &call, bool replace) {
    if (call.action)
        runSearchAction(call.search, replace, *call.action);
    else if (call.withLastSettings && call.fromPowerButton)
        runInOneStep(call.search, replace, call.services.dialogs.searchWindow().request());
    else
        openSearchDialog(call.services.dialogs.searchWindow(), call.context.box, replace);
}

void openSearchDialog(SearchWindow &window, const TextBox &box, bool replace) {
    const int length = box.SelLength();
    if (length >= 1 && length <= longestSeed) {
        const EscapedText seed = escapedControls(box.SelText());
        window.setSearchText(seed.text);
        if (seed.specialChars)
            window.setSpecialChars(true);
    }
    if (window.request().specialChars)
        window.expandDialog();
    window.showDialog(replace);
}

void runSearchAction(CSearch &search, bool replace, const CAction &action) {
    runInOneStep(search, replace, readRequest(action.params(), replace, actionReading()));
}

} // namespace tolvo
