// SPDX-License-Identifier: MIT
// All matches of a search as a text of their own, one a line.
#pragma once

#include "search/regular_expression.h"
#include "search/search_request.h"

namespace tolvo {

class cTextMethods;

struct MatchCopy {
    SearchRequest search = {};
    /// What each match becomes: $& is the match, $1 to $9 are its groups, as in a replacement. Empty means
    /// the match.
    QString form = {};
    bool inPlace = false; ///< the copy takes the place of the text; otherwise it goes to the clipboard

    /// As it was used last.
    void load(const SettingsStore &store);
};

/// Reads the settings string of an Action; the search in it as `reading` says. A missing form is empty, and a
/// copy goes to the clipboard then.
[[nodiscard]] MatchCopy readMatchCopy(const CParams &params, const RequestReading &reading = actionReading());

/// The settings string, what is special to a copy at its end:
///   "Mode=3, Find=(a)b, MatchCase=0, Direction=D, WholeWords=0, Form=<$1>, InPlace=0"
[[nodiscard]] QString settingsString(const MatchCopy &copy);

struct CopiedMatches {
    QString text; ///< a line for each match that a Find All lists, CR LF after each but the last
    int count = 0;
};

/// The copy of the matches in a text with CR LF as its line end. `expression` is that of the search, null for
/// a simple one. Fails with patternLimit when the budget is spent, and for an escape that can't be read.
///   "(\w)=(\d)" with the form "$2 $1" makes "1 a", CR LF, "2 b" of "a=1, b=2"
[[nodiscard]] CopiedMatches copyOfMatches(const QString &text, const MatchCopy &copy,
                                          const RegularExpression *expression, const cTextMethods &engine,
                                          MatchBudget &budget);

} // namespace tolvo
