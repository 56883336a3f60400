// SPDX-License-Identifier: MIT
// What is said and shown of a search while it is being written: in another thread what it finds, and in the
// window's what that means at the place where the user is.
#pragma once

#include "platform/background_job.h"
#include "search/found_matches.h"

namespace tolvo {

/// So many matches are marked and counted.
inline constexpr qsizetype mostLiveMatches = 10'000;

struct LiveQuestion {
    QString text = {}; ///< with CR LF as its line end
    SearchRequest request = {};
    bool isReplacing = false;
    int capacity = 0; ///< of the box that the text is in, in units
};

struct LiveAnswer {
    FoundMatches found;
    std::optional<ReplacementForecast> forecast; ///< what Replace All would do
};

/// Safe in any thread, and ends within some two seconds, or soon after it is cancelled.
[[nodiscard]] LiveAnswer liveAnswer(const LiveQuestion &question, const Cancellation &cancellation);

/// How some of its matches would be replaced, which are not more than are in sight. Safe in any thread.
[[nodiscard]] QList<PreviewedReplacement> livePreview(const LiveQuestion &question,
                                                      const QList<RegularExpression::Span> &places,
                                                      const Cancellation &cancellation);

/// The place, from 0, of the match that a selection is; -1 if it is not a match.
[[nodiscard]] qsizetype matchAt(const QList<RegularExpression::Span> &places,
                                RegularExpression::Span selection);

/// The matches that begin or end in a part of the text, at most `most` of them.
[[nodiscard]] QList<RegularExpression::Span> matchesIn(const QList<RegularExpression::Span> &places,
                                                       RegularExpression::Span part, qsizetype most);

/// What there is, in words: "12 matches", "3 of 12", "more than 10,000 matches", "no match", what is wrong
/// with the request and where. If none lies in the direction of the request, how to come to the others. Empty
/// for an empty find text.
///   a search down from the end of "one one" gives "2 matches above: From Start finds them"
[[nodiscard]] QString answerInWords(const LiveAnswer &answer, const SearchRequest &request,
                                    RegularExpression::Span selection);

/// Where in the replacement an escape has no digits, from 0; -1 if nothing is wrong with it.
[[nodiscard]] qsizetype badReplacementAt(const SearchRequest &request);

/// What Replace All would do, in words; empty if that isn't known.
///   "12 will be replaced"
[[nodiscard]] QString forecastInWords(const LiveAnswer &answer);

} // namespace tolvo
