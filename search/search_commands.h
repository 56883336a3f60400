// SPDX-License-Identifier: MIT
// What the three buttons of the search window do, in each mode.
#pragma once

#include "search/CSearch.h"
#include "search/search_form.h"

namespace tolvo {

enum class SearchedBy {
    Window,     ///< the first press of Replace only selects, and Replace All tells how many
    PowerButton ///< one step finds and replaces, in silence
};

void runSearch(const SearchForm &form, CSearch &search, SearchHost &host);
/// The first press selects, the next one replaces. From the window each replacement is an undo step of its
/// own.
void runReplace(const SearchForm &form, CSearch &search, SearchHost &host,
                SearchedBy by = SearchedBy::Window);
void runReplaceAll(const SearchForm &form, CSearch &search, SearchHost &host,
                   SearchedBy by = SearchedBy::Window);
/// Lists all matches and shows the list. Nothing for an empty search text.
void runFindAll(const SearchForm &form, CSearch &search, SearchHost &host);

} // namespace tolvo
