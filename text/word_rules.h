// SPDX-License-Identifier: MIT
// What counts as a word, an abbreviation, an address, a quotation mark: the rules that the case tools, the
// punctuation check and the statistics share. Positions count from 1.
#pragma once

#include <QSet>
#include <QString>
#include <QStringView>
#include <functional>

namespace tolvo {

/// Stands for the character before the start or behind the end of a text: equal to no code unit, no letter,
/// no digit, member of no set.
inline constexpr int noUnit = -1;

/// The code unit at a position, or noUnit.
[[nodiscard]] inline int unitAt(QStringView text, qsizetype position) {
    return position >= 1 && position <= text.size() ? text[position - 1].unicode() : noUnit;
}

/// The letter test for what unitAt gives.
[[nodiscard]] bool isLetterUnit(int unit);
/// True for "0" to "9".
[[nodiscard]] constexpr bool isDigitUnit(int unit) {
    return unit >= u'0' && unit <= u'9';
}
/// True if the set holds the unit; false for noUnit.
[[nodiscard]] bool isOneOf(QStringView set, int unit);

/// True if comma, word, comma occurs in the list, in any case.
[[nodiscard]] bool listHolds(QStringView list, QStringView word);

/// The same for a list that is asked often.
class WordList {
  public:
    explicit WordList(QString list = {});
    [[nodiscard]] bool holds(QStringView word) const;

  private:
    QString m_list;
    QSet<QString> m_keys; // the words between two commas, made for comparison without regard to case
    quint64 m_sizes = 0;  // bit n is set if a word of n units is among them
};

/// Without stop characters and closing brackets at the end; without quote marks at both ends.
[[nodiscard]] QStringView trimStopCharacters(QStringView text);
[[nodiscard]] QStringView trimQuoteMarks(QStringView text);

/// Without leading opening and trailing closing brackets.
[[nodiscard]] QStringView StripBrackets(QStringView word);

/// True if a full stop at the word's end does not end a sentence: "e.g.", "U.S.A.", "wait...", but not "a.",
/// "U.S" (both too short), "Ph.D.", "etc.". Stops must stand at every second place; of the places between
/// only the first is tested for a letter, so "a.1." counts too.
[[nodiscard]] bool IsAbbreviation(QStringView word);

/// Tells whether the apostrophe just before the position is a quotation mark, not part of "can't" or "dogs'".
/// The word in front of it runs across line ends: they are no separators here.
[[nodiscard]] bool IsQuoteMark(QStringView text, qsizetype position);

/// The word that ends at the position: letters, and apostrophes (hyphens too, unless they break the word)
/// behind a letter. A position below 1 gives no word.
[[nodiscard]] QStringView WordBefore(QStringView text, qsizetype position, bool hyphenBreaks);

/// The word that starts at the position and reaches `last` at most; apostrophes (and hyphens) belong to it if
/// a letter follows.
[[nodiscard]] QStringView WordAfter(QStringView text, qsizetype position, qsizetype last, bool hyphenBreaks);

/// True if no character from position `from` to position `to` is a letter, or if there is none.
[[nodiscard]] bool NoLettersBetween(QStringView text, qsizetype from, qsizetype to);

/// Adds a line to a list of messages.
void AddMessage(QString &list, const QString &message);

/// The warnings about quotations that are still open at a text's end.
[[nodiscard]] QString quotesLeftOpen(bool inDouble, bool inSingle);

/// Tells addresses and file names from words: by the extensions that the system knows and the domains in use.
class AddressRules {
  public:
    using KnownExtension = std::function<bool(const QString &)>;

    explicit AddressRules(KnownExtension isKnownExtension)
        : m_isKnownExtension(std::move(isKnownExtension)) {}

    /// The list of domains, delimited by commas.
    void setTopLevelDomains(const QString &list) { m_domains = WordList(list); }

    /// True for an Internet address, a path or a file name, brackets and stops at its end apart: its full
    /// stops end no sentence.
    [[nodiscard]] bool IsWebOrFileName(QStringView word) const;

  private:
    KnownExtension m_isKnownExtension;
    WordList m_domains;
};

} // namespace tolvo
