// SPDX-License-Identifier: MIT
// How the session reaches search and replace: the search window, and the searches of PowerButtons.
#include "base/conversions.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "search/escaped_text.h"
#include "search/search_commands.h"
#include "shell/frmMain.h"

namespace tolvo {

namespace {

constexpr int longestSeed = 24; ///< a longer selection is text to work on, not text to look for

/// The settings of a search as an Action stores them.
struct SearchRequest {
    explicit SearchRequest(const CAction &action);

    int mode;
    QString find;
    QString replace;
    bool replaceAll;
    bool specialChars;
    bool fromStart; ///< Direction is S
    bool down;      ///< D
    bool up;        ///< U
    bool matchCase;
    bool smartReplace;
    WildcardOptions wildcard;
};

bool flagOf(const CAction &action, const QString &key) {
    return saysYes(action.Param(key));
}

SearchRequest::SearchRequest(const CAction &action)
    : mode(static_cast<int>(ValueOf(action.Param(QStringLiteral("Mode"))))),
      find(action.Param(QStringLiteral("Find"))), replace(action.Param(QStringLiteral("Replace"))),
      replaceAll(flagOf(action, QStringLiteral("ReplaceAll"))),
      specialChars(flagOf(action, QStringLiteral("SpecialChars"))),
      fromStart(action.Param(QStringLiteral("Direction")) == QLatin1StringView("S")),
      down(action.Param(QStringLiteral("Direction")) == QLatin1StringView("D")),
      up(action.Param(QStringLiteral("Direction")) == QLatin1StringView("U")),
      matchCase(flagOf(action, QStringLiteral("MatchCase"))),
      smartReplace(flagOf(action, QStringLiteral("SmartReplace"))) {
    if (mode == 0)
        mode = 1;
    wildcard.wholeWords = flagOf(action, QStringLiteral("WholeWords"));
    if (action.params().contains(QStringLiteral("Anchor")))
        wildcard.anchor = static_cast<int>(ValueOf(action.Param(QStringLiteral("Anchor"))));
    if (action.params().contains(QStringLiteral("DecimalSep")))
        wildcard.decimalSep = action.Param(QStringLiteral("DecimalSep"));
    // The search window stores the separator as GroupingSep. Stored buttons have always run without one, and
    // a # in them matches numbers without grouping: they go on doing so.
    wildcard.groupingSep = action.Param(QStringLiteral("DigitGrpSep"));
}

void searchFor(CSearch &search, const QString &text, SearchRequest request) {
    const SearchRequest &r = request;
    switch (r.mode) {
    case 1:
        search.SimpleSearch(r.find, r.specialChars, r.up, r.down, request.fromStart, r.matchCase,
                            r.wildcard.wholeWords);
        break;
    case 2:
        search.WildcardSearch(r.find, r.specialChars, r.up, r.fromStart, r.matchCase, r.wildcard);
        break;
    default:
        search.RegExpSearch(text, r.find, r.up, r.fromStart, r.matchCase);
    }
}

// A step of a PowerButton finds and replaces at once, and no count is shown.
constexpr bool replaceAfterFind = true;
constexpr bool silent = true;

void replaceOne(CSearch &search, const SearchRequest &r) {
    switch (r.mode) {
    case 1:
        search.SimpleReplace(r.find, r.replace, r.specialChars, r.up, r.down, r.fromStart, r.matchCase,
                             r.wildcard.wholeWords, r.smartReplace, replaceAfterFind);
        break;
    case 2:
        search.WildcardReplace(r.find, r.replace, r.specialChars, r.up, r.fromStart, r.matchCase,
                               r.smartReplace, r.wildcard, replaceAfterFind);
        break;
    default:
        // D stands where "from the start" is expected: D begins at the top of the text and S goes down from
        // the selection, the reverse of everything else. Stored buttons rely on it.
        search.RegExpReplace(r.find, r.replace, r.up, r.down, r.matchCase, r.smartReplace, replaceAfterFind);
    }
}

void replaceEach(CSearch &search, const SearchRequest &r) {
    switch (r.mode) {
    case 1:
        search.SimpleReplaceAll(r.find, r.replace, r.specialChars, r.matchCase, r.wildcard.wholeWords,
                                r.smartReplace, silent);
        break;
    case 2:
        search.WildcardReplaceAll(r.find, r.replace, r.specialChars, r.matchCase, r.smartReplace, r.wildcard,
                                  silent);
        break;
    default:
        search.RegExpReplaceAll(r.find, r.replace, r.matchCase, r.smartReplace, silent);
    }
}

} // namespace

void frmMain::OpenSearchDialog(bool bReplace) {
    SearchWindow &window = m_services.windows.search();
    const int length = txtCurrent().SelLength();
    if (length >= 1 && length <= longestSeed) {
        const EscapedText seed = escapedControls(txtCurrent().SelText());
        window.setSearchText(seed.text);
        if (seed.specialChars)
            window.setSpecialChars(true);
    }
    if (window.specialChars())
        window.expandDialog();
    window.showDialog(bReplace);
}

void frmMain::FindAgain() {
    guarded(u"FindAgain", [this] {
        SearchWindow &window = m_services.windows.search();
        if (window.searchText().isEmpty())
            OpenSearchDialog(false);
        else
            window.cmdSearch_Click();
    });
}

void frmMain::runLastSearch(bool bReplace) {
    const SearchForm form = m_services.windows.search().form();
    if (!bReplace)
        runSearch(form, oSearch(), searchHost());
    else if (form.replaceAll)
        runReplaceAll(form, oSearch(), searchHost(), SearchedBy::PowerButton);
    else
        runReplace(form, oSearch(), searchHost(), SearchedBy::PowerButton);
}

void frmMain::RunSearchAction(bool bReplace, const CAction &action) {
    const SearchRequest request(action);
    if (request.mode < 1 || request.mode > 3)
        throw Failure(failureNumber::invalidArgument,
                      QStringLiteral("There is no search mode %1").arg(request.mode));
    if (!bReplace)
        searchFor(oSearch(), txtCurrent().Text(), request);
    else if (request.replaceAll)
        replaceEach(oSearch(), request);
    else
        replaceOne(oSearch(), request);
}

} // namespace tolvo
