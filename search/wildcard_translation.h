// SPDX-License-Identifier: MIT
// The wildcard language: each wildcard becomes a group of a regular expression.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Where a match has to be. The numbers are those in the store and in settings strings.
enum class Anchor { WordStart, WordEnd, LineStart, LineEnd, Anywhere };

struct WildcardOptions {
    bool wholeWords = false;
    Anchor anchor = Anchor::Anywhere;
    QString decimalSep = QStringLiteral(".");
    QString groupingSep = QStringLiteral(","); ///< "space" is one blank
};

struct WildcardTranslation {
    QString shown;    ///< the regular expression as the user sees it
    QString compiled; ///< one that matches the same, group by group, without trying a text in countless ways
    bool bracketMissing = false; ///< a "[" without its "]": both are empty
    qsizetype bracketAt = -1;    ///< where that "[" stands, from 0
};

/// The expression of a wildcard pattern. `specialChars`: "\n", "\t", "\xHH" and "\uHHHH" are escapes in it.
///   "a?" is shown as "a(.)"
[[nodiscard]] WildcardTranslation translateWildcards(QStringView pattern, bool specialChars,
                                                     const WildcardOptions &options);

/// The help about wildcards for the user. Line ends stand in it as backslash and n.
extern const QStringView wildcardHelp;

} // namespace tolvo
