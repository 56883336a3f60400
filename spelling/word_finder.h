// SPDX-License-Identifier: MIT
// The words of a text as the dictionary of a language has them. Positions count from 0, in UTF-16 code units.
#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringView>
#include <functional>

namespace tolvo {

/// What holds a word together, besides letters with their combining marks.
struct WordRules {
    /// The characters that the dictionary names (WORDCHARS) and those that it turns into such ones or into
    /// letters (ICONV). An apostrophe before a letter, curly (U+2019) or straight, if it names one of the
    /// two.
    bool dictionaryDecides;
    /// If it doesn't decide: a straight apostrophe and a hyphen before a letter, and, if wanted, a curly one.
    bool curlyApostrophe;

    bool operator==(const WordRules &) const = default;
};

/// The table of languages: all that British English, the default, has of its own.
///   - U+2019 ends a word, unless the user wants it otherwise: a check in the default language finds the
///     words that it always found.
///   - A hyphen joins two words to one, which the dictionary gets whole, whatever its WORDCHARS say.
///   - Digits end a word, although the dictionary's WORDCHARS have them: "abc1def" is "abc" and "def".
/// Every other language has what its dictionary says. `curlyToo` is the user's wish for the default.
[[nodiscard]] inline WordRules wordRulesOf(QStringView locale, bool curlyToo) {
    return locale == u"en-gb" ? WordRules{false, curlyToo} : WordRules{true, true};
}

/// A word of a text.
struct FoundWord {
    qsizetype start = 0;
    qsizetype length = 0; ///< 0: no word is left
    /// The same with the characters around it that the dictionary has in words: it may know "etc." or "-hez",
    /// but neither "etc" nor "hez".
    qsizetype outerStart = 0;
    qsizetype outerLength = 0;
};

/// Finds one word after the other.
class WordFinder {
  public:
    /// Gives what a dictionary turns a character into before it looks a word up (ICONV).
    using Conversion = std::function<QString(const QString &)>;

    /// `wordCharacters` and `conversion` are the dictionary's; they count only if it decides.
    explicit WordFinder(WordRules rules = wordRulesOf(u"en-gb", false), const QString &wordCharacters = {},
                        Conversion conversion = {});

    /// The first word at or after a place. It begins with a letter, or with a digit if the dictionary has
    /// digits in words, and ends with one of these, a combining mark included.
    [[nodiscard]] FoundWord next(QStringView text, qsizetype from);

  private:
    enum class Kind {
        Break,  ///< ends a word
        Joiner, ///< part of the word before one of the following
        Inner,  ///< part of the word, but not its beginning or end
        Mark,   ///< part of the word after a letter
        Letter  ///< begins a word
    };

    [[nodiscard]] Kind kindOf(char32_t character);
    [[nodiscard]] bool joinsApostrophe(char32_t apostrophe) const;
    [[nodiscard]] bool goesOn(QStringView text, qsizetype at);
    [[nodiscard]] Kind kindByRules(char32_t character) const;

    WordRules m_rules;
    QSet<char32_t> m_wordCharacters;
    Conversion m_conversion;
    QHash<char32_t, Kind> m_kinds; ///< of the characters met so far that are no letters
};

} // namespace tolvo
