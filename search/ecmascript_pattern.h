// SPDX-License-Identifier: MIT
// Patterns are written in the syntax of ECMAScript (without its u flag, always multi-line); the engine
// beneath is PCRE2. This is the bridge: the pattern is parsed whole and written anew, so that nothing of
// PCRE2's own syntax shines through.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

struct TranslatedPattern {
    QString pattern;        ///< for PCRE2; empty if there is an error
    QString error;          ///< what is wrong with the pattern, for the user; empty if nothing is
    qsizetype errorAt = -1; ///< where, from 0
    int groups = 0;         ///< number of capturing groups
    bool lookAhead = false; ///< holds (?= or (?!
};

/// Refused: look-behind and every other group that begins with "(?", apart from "(?:", "(?=" and "(?!"; a
/// quantifier on nothing, on an assertion or on a quantifier. Repeat counts above 65,535 are taken as 65,535.
/// A pattern that is refused has an `error`.
[[nodiscard]] TranslatedPattern translateEcmaScript(QStringView pattern, bool matchCase);

} // namespace tolvo
