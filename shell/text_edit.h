// SPDX-License-Identifier: MIT
// One change of a text: what stood at a place, and what stands there instead.
#pragma once

#include <QString>

#include <limits>

namespace tolvo {

struct TextEdit {
    int position = 0; ///< in UTF-16 units, from 0
    QString removed;
    QString inserted;
};

/// The change that makes `after` of `before`. It begins at `latestStart` or before it: a letter that was
/// typed among its like is found where the caret stood. Both ends lie outside of line ends, so that a text
/// box can select what was removed or inserted.
[[nodiscard]] TextEdit changeBetween(const QString &before, const QString &after,
                                     qsizetype latestStart = std::numeric_limits<qsizetype>::max());

/// The text after an edit, of the text before it:
///   withEdit(u"abc", {1, u"b", u"xy"}) == u"axyc"
[[nodiscard]] QString withEdit(const QString &text, const TextEdit &edit);
/// The text before an edit, of the text after it:
///   withoutEdit(u"axyc", {1, u"b", u"xy"}) == u"abc"
[[nodiscard]] QString withoutEdit(const QString &text, const TextEdit &edit);

/// Whether an edit typed or deleted a single character, as users count them.
[[nodiscard]] bool isSingleCharacter(const TextEdit &edit);

/// Takes `next` into `edit` if both are the typing, or the deleting, of one word: character by character,
/// next to each other. A word takes the white space after it along. False if the two remain two.
[[nodiscard]] bool joinWord(TextEdit &edit, const TextEdit &next);

} // namespace tolvo
