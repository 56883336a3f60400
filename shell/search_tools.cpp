// SPDX-License-Identifier: MIT
#include "shell/search_tools.h"

#include "base/escaped_text.h"
#include "base/numbers.h"
#include "platform/clipboard.h"
#include "powerbuttons/CAction.h"
#include "search/CSearch.h"
#include "shell/session_windows.h"
#include "shell/tool_call.h"

namespace tolvo {

namespace {

constexpr int longestSeed = 24; ///< a longer selection is text to work on, not text to look for

void runInOneStep(CSearch &search, bool replace, const SearchRequest &request) {
    search.run(request.verb(replace), request, SearchedBy::PowerButton);
}

/// "1 match", "12 matches"
QString countedMatches(int count) {
    return count == 1 ? QStringLiteral("1 match") : groupedNumber(count) + QStringLiteral(" matches");
}

/// A short selection becomes the search text.
void seed(SearchWindow &window, const TextBox &box) {
    const int length = box.SelLength();
    if (length >= 1 && length <= longestSeed) {
        const EscapedText seed = escapedControls(box.SelText());
        window.setSearchText(seed.text);
        if (seed.specialChars)
            window.setSpecialChars(true);
    }
    if (window.request().specialChars)
        window.expandDialog();
}

} // namespace

void copyMatches(const ToolCall &call, const MatchCopy &copy) {
    const std::optional<CopiedMatches> copied = call.search.copyMatches(copy);
    if (!copied)
        return;
    TextHost &host = call.context.host;
    if (copied->count == 0)
        return host.setStatus(copy.inPlace ? QStringLiteral("No match: the text stays as it is")
                                           : QStringLiteral("No match: the clipboard stays as it is"));
    if (copy.inPlace)
        call.context.box.setText(copied->text);
    else
        call.services.clipboard.writeText(copied->text);
    host.setStatus(countedMatches(copied->count) +
                   (copy.inPlace ? QStringLiteral(" in place of the text") : QStringLiteral(" copied")));
}

void copyMatches(const ToolCall &call) {
    SearchWindow &window = call.services.dialogs.searchWindow();
    if (call.action) {
        copyMatches(call, readMatchCopy(call.action->params()));
    } else if (call.withLastSettings) {
        MatchCopy copy;
        copy.load(call.services.store);
        copy.search = window.request();
        copyMatches(call, copy);
    } else {
        seed(window, call.context.box);
        window.showCopyMatches();
    }
}

void runSearchTool(const ToolCall &call, bool replace) {
    if (call.action)
        runSearchAction(call.search, replace, *call.action);
    else if (call.withLastSettings && call.fromPowerButton)
        runInOneStep(call.search, replace, call.services.dialogs.searchWindow().request());
    else
        openSearchDialog(call.services.dialogs.searchWindow(), call.context.box, replace);
}

void openSearchDialog(SearchWindow &window, const TextBox &box, bool replace) {
    seed(window, box);
    window.showDialog(replace);
}

void runSearchAction(CSearch &search, bool replace, const CAction &action) {
    runInOneStep(search, replace, readRequest(action.params(), replace, actionReading()));
}

} // namespace tolvo
