// SPDX-License-Identifier: MIT
// What counts as a word, an abbreviation, an address or a quotation mark: the rules that the case tools, the
// punctuation check and the statistics share. Positions count from 1, in UTF-16 code units.
#pragma once

#include <QSet>
#include <QString>
#include <QStringView>
#include <functional>

namespace tolvo {

/// Stands for the character before the start or after the end of a text. It equals no code unit, is not a
/// letter or digit, and is in no set.
inline constexpr int noUnit = -1;

/// The code unit at a position; noUnit outside the text.
///   unitAt(u"ab", 2) == u'b', unitAt(u"ab", 3) == noUnit
[[nodiscard]] inline int unitAt(QStringView text, qsizetype position) {
    return position >= 1 && position <= text.size() ? text[position - 1].unicode() : noUnit;
}

/// The letter test for a result of unitAt: isLetterUnit(u'é') is true, isLetterUnit(noUnit) is false.
[[nodiscard]] bool isLetterUnit(int unit);
/// True for "0" to "9": isDigitUnit(u'7') is true, isDigitUnit(noUnit) is false.
[[nodiscard]] constexpr bool isDigitUnit(int unit) {
    return unit >= u'0' && unit <= u'9';
}
/// True if the set holds the unit: isOneOf(u".?!", u'?') is true, isOneOf(u".?!", noUnit) is false.
[[nodiscard]] bool isOneOf(QStringView set, int unit);

/// True if the list holds the word between two commas, in any case: listHolds(u",a,b,", u"B") is true. A word
/// may hold commas itself: listHolds(u",a,b,", u"a,B") is true.
[[nodiscard]] bool listHolds(QStringView list, QStringView word);

/// The same for a list that is asked often: its words are hashed once.
class WordList {
  public:
    explicit WordList(QString list = {});
    /// WordList(u",a,b,"_s).holds(u"B") is true.
    [[nodiscard]] bool holds(QStringView word) const;

  private:
    QString m_list;
    QSet<QString> m_keys; // the words between two commas, folded to one case
    quint64 m_sizes = 0;  // bit n is set if a word of n units is among them
};

/// The text without stop characters and closing brackets at its end.
///   trimStopCharacters(u".a.?)]} ,;:!") == u".a.?)]} "
[[nodiscard]] QStringView trimStopCharacters(QStringView text);
/// The text without quote marks, straight or curly, at both ends.
///   trimQuoteMarks(u"\"‘a'b”’") == u"a'b"
[[nodiscard]] QStringView trimQuoteMarks(QStringView text);

/// The word without opening brackets at its start and closing ones at its end, paired or not.
///   StripBrackets(u"([a)]}") == u"a"
[[nodiscard]] QStringView StripBrackets(QStringView word);

/// True if a full stop at the word's end doesn't end a sentence. Brackets around the word are ignored. It
/// must end in an ellipsis, or start with a letter and have a stop at every second place, at least two of
/// them; only the first place is tested for a letter.
///   true for "e.g.", "U.S.A.", "wait...", "a.1."; false for "a.", "U.S", "Ph.D.", "etc."
[[nodiscard]] bool IsAbbreviation(QStringView word);

/// True if the apostrophe just before the position is a quotation mark, false if it is part of a word, as in
/// "can't" or "dogs'". A line end doesn't separate the apostrophe from the word before it.
///   IsQuoteMark(u"'quoted", 2) is true, IsQuoteMark(u"can't", 5) is false
[[nodiscard]] bool IsQuoteMark(QStringView text, qsizetype position);

/// The word that ends at the position: letters, and apostrophes (and hyphens, unless `hyphenBreaks`) after a
/// letter. Empty if no such character is there, or for a position below 1.
///   WordBefore(u"a re-run", 8, false) == u"re-run", WordBefore(u"a re-run", 8, true) == u"run"
[[nodiscard]] QStringView WordBefore(QStringView text, qsizetype position, bool hyphenBreaks);

/// The word that starts at the position and ends at `last` at most: letters, and apostrophes (and hyphens,
/// unless `hyphenBreaks`) before a letter. Empty if no such character is there.
///   WordAfter(u"don't go", 1, 8, true) == u"don't", WordAfter(u"don't go", 1, 2, true) == u"do"
[[nodiscard]] QStringView WordAfter(QStringView text, qsizetype position, qsizetype last, bool hyphenBreaks);

/// Adds a line to a list of messages: to "a" it adds "b" as "a|b". The first line has no line end before it.
void AddMessage(QString &list, const QString &message);

/// The warnings about quotations that are still open at the end of a text, one a line; empty without any.
///   quotesLeftOpen(false, true) == u"There appears to be a closing single quote (') missing"
[[nodiscard]] QString quotesLeftOpen(bool inDouble, bool inSingle);

/// Recognises addresses and file names, by the known file extensions and the domains in use.
class AddressRules {
  public:
    /// Whether a file extension, without its full stop, is known.
    using KnownExtension = std::function<bool(const QString &)>;

    /// No domain is in use at first.
    explicit AddressRules(KnownExtension isKnownExtension)
        : m_isKnownExtension(std::move(isKnownExtension)) {}

    /// Replaces the domains in use; see text/top_level_domains.h for the form of the list.
    void setTopLevelDomains(const QString &list) { m_domains = WordList(list); }

    /// True for an Internet address, a path or a file name, whose full stops don't end sentences. Stops,
    /// brackets and quote marks around it are ignored.
    ///   true for "example.org.", "a.txt", "me@x", "a.b.c"; false for "word.", "1.2", "a/b"
    [[nodiscard]] bool IsWebOrFileName(QStringView word) const;

  private:
    KnownExtension m_isKnownExtension;
    WordList m_domains;
};

} // namespace tolvo
