// SPDX-License-Identifier: MIT
// How a text answers a word that somebody types to find it.
#pragma once

#include <QList>
#include <QString>

namespace tolvo {

/// What a word was found as. Later is better.
enum class MatchKind {
    None,
    Slip,      ///< a word that differs by one letter too many, too few, another, or two that changed places
    Scattered, ///< in pieces of two letters and more on average
    Run,       ///< in one piece inside a word
    Starts,    ///< the beginnings of words: one, or in a title several ("jp" in "Join paragraphs")
    Words,     ///< a whole word
};

struct WordMatch {
    MatchKind kind = MatchKind::None;
    QList<int> marked; ///< the units of the text that were found, from 0, ascending
};

enum class TextKind {
    Title, ///< short: letters of the word may lie apart in it
    Prose, ///< the word must lie in one piece in one of its words
};

/// Finds `word`, which holds no blanks, in a text, in any case of letters, and takes the best of its places,
/// which needn't be the first: "itc" in "Initial title case" is I, t, c.
/// A single letter is found only where a word begins; a slip is forgiven to words of four letters and more.
[[nodiscard]] WordMatch matchWord(QStringView word, QStringView text, TextKind kind);

/// The words of a text, in small letters: runs of letters and digits. "e-mail (> and |)" has e, mail, and.
[[nodiscard]] QStringList wordsOf(QStringView text);

} // namespace tolvo
