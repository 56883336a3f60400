// SPDX-License-Identifier: MIT
// How the session reaches search and replace: the search window, and the searches of PowerButtons.
#include "search/escaped_text.h"
#include "search/search_request.h"
#include "shell/frmMain.h"

namespace tolvo {

namespace {

constexpr int longestSeed = 24; ///< a longer selection is text to work on, not text to look for

} // namespace

void frmMain::OpenSearchDialog(bool bReplace) {
    SearchWindow &window = m_services.dialogs.searchWindow();
    const int length = txtCurrent().SelLength();
    if (length >= 1 && length <= longestSeed) {
        const EscapedText seed = escapedControls(txtCurrent().SelText());
        window.setSearchText(seed.text);
        if (seed.specialChars)
            window.setSpecialChars(true);
    }
    if (window.request().specialChars)
        window.expandDialog();
    window.showDialog(bReplace);
}

void frmMain::FindAgain() {
    guarded(u"FindAgain", [this] {
        SearchWindow &window = m_services.dialogs.searchWindow();
        if (window.request().find.isEmpty())
            OpenSearchDialog(false);
        else
            window.cmdSearch_Click();
    });
}

void frmMain::runLastSearch(bool bReplace) {
    const SearchRequest request = m_services.dialogs.searchWindow().request();
    oSearch().run(request.verb(bReplace), request, SearchedBy::PowerButton);
}

void frmMain::RunSearchAction(bool bReplace, const CAction &action) {
    const SearchRequest request = readRequest(action.params(), bReplace, actionReading());
    oSearch().run(request.verb(bReplace), request, SearchedBy::PowerButton);
}

} // namespace tolvo
