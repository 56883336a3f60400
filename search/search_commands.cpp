// SPDX-License-Identifier: MIT
#include "search/search_commands.h"

#include "search/result_lines.h"

namespace tolvo {

void runSearch(const SearchForm &form, CSearch &search, SearchHost &host) {
    switch (form.mode) {
    case SearchMode::Simple: {
        bool fromStart = form.fromStart();
        search.SimpleSearch(form.find, form.specialChars, form.up(), form.down(), fromStart, form.matchCase,
                            form.wholeWords);
        break;
    }
    case SearchMode::Wildcard:
        search.WildcardSearch(form.find, form.specialChars, form.up(), form.fromStart(), form.matchCase,
                              form.wildcardOptions());
        break;
    case SearchMode::RegularExpression:
        search.RegExpSearch(host.txtCurrent().Text(), form.find, form.up(), form.fromStart(), form.matchCase);
        break;
    }
}

namespace {

void replaceOne(const SearchForm &form, CSearch &search, bool replaceAfterFind) {
    switch (form.mode) {
    case SearchMode::Simple:
        search.SimpleReplace(form.find, form.replace, form.specialChars, form.up(), form.down(),
                             form.fromStart(), form.matchCase, form.wholeWords, form.smartReplace,
                             replaceAfterFind);
        break;
    case SearchMode::Wildcard:
        search.WildcardReplace(form.find, form.replace, form.specialChars, form.up(), form.fromStart(),
                               form.matchCase, form.smartReplace, form.wildcardOptions(), replaceAfterFind);
        break;
    case SearchMode::RegularExpression:
        search.RegExpReplace(form.find, form.replace, form.up(), form.fromStart(), form.matchCase,
                             form.smartReplace, replaceAfterFind);
        break;
    }
}

void replaceAll(const SearchForm &form, CSearch &search, bool silent) {
    switch (form.mode) {
    case SearchMode::Simple:
        search.SimpleReplaceAll(form.find, form.replace, form.specialChars, form.matchCase, form.wholeWords,
                                form.smartReplace, silent);
        break;
    case SearchMode::Wildcard:
        search.WildcardReplaceAll(form.find, form.replace, form.specialChars, form.matchCase,
                                  form.smartReplace, form.wildcardOptions(), silent);
        break;
    case SearchMode::RegularExpression:
        search.RegExpReplaceAll(form.find, form.replace, form.matchCase, form.smartReplace, silent);
        break;
    }
}

/// A step of a PowerButton is bracketed by whoever runs it.
template <class Replace>
void asUndoStep(SearchHost &host, SearchedBy by, Replace replace) {
    if (by == SearchedBy::PowerButton)
        return replace();
    host.pushUndo();
    replace();
    host.pushUndo();
}

} // namespace

void runReplace(const SearchForm &form, CSearch &search, SearchHost &host, SearchedBy by) {
    asUndoStep(host, by, [&] { replaceOne(form, search, by == SearchedBy::PowerButton); });
}

void runReplaceAll(const SearchForm &form, CSearch &search, SearchHost &host, SearchedBy by) {
    asUndoStep(host, by, [&] { replaceAll(form, search, by == SearchedBy::PowerButton); });
}

void runFindAll(const SearchForm &form, CSearch &search, SearchHost &host) {
    if (form.find.isEmpty())
        return;
    int count = 0;
    switch (form.mode) {
    case SearchMode::Simple:
        return search.SimpleFindAll(form.find, form.specialChars, form.matchCase, form.wholeWords);
    case SearchMode::Wildcard:
        count = search.WildcardFindAll(form.find, form.specialChars, form.matchCase, form.wildcardOptions());
        break;
    case SearchMode::RegularExpression: {
        QString text = host.txtCurrent().Text();
        count = search.RegExpFindAll(text, form.find, form.matchCase);
        break;
    }
    }
    host.results().setCaption(resultsCaption(count, form.find));
    host.results().show();
}

} // namespace tolvo
