// SPDX-License-Identifier: MIT
#include "text/word_rules.h"

#include "base/character_sets.h"
#include "base/code_page.h"
#include "base/paths.h"

#include <algorithm>
#include <array>

namespace tolvo {

bool isLetterUnit(int unit) {
    return unit != noUnit && isLetter(static_cast<char16_t>(unit));
}

bool isOneOf(QStringView set, int unit) {
    return unit != noUnit && contains(set, static_cast<char16_t>(unit));
}

bool listHolds(QStringView list, QStringView word) {
    const qsizetype size = word.size();
    for (qsizetype i = 0; i + size + 1 < list.size(); ++i) {
        if (list[i] == u',' && list[i + size + 1] == u',' &&
            equalsIgnoringCase(list.sliced(i + 1, size), word))
            return true;
    }
    return false;
}

namespace {

/// Words that differ in case alone have the same key.
QString caselessKey(QStringView word) {
    QString key(word.size(), Qt::Uninitialized);
    std::transform(word.begin(), word.end(), key.begin(),
                   [](QChar c) { return QChar(toLower(toUpper(c.unicode()))); });
    return key;
}

quint64 sizeBit(qsizetype size) {
    return quint64{1} << qMin<qsizetype>(size, 63);
}

} // namespace

WordList::WordList(QString list) : m_list(std::move(list)) {
    const QStringView text(m_list);
    qsizetype comma = text.indexOf(u',');
    while (comma >= 0) {
        const qsizetype next = text.indexOf(u',', comma + 1);
        if (next >= 0) {
            m_keys.insert(caselessKey(text.sliced(comma + 1, next - comma - 1)));
            m_sizes |= sizeBit(next - comma - 1);
        }
        comma = next;
    }
}

bool WordList::holds(QStringView word) const {
    // A word with a comma may be two neighbours in the list.
    if (word.contains(u','))
        return listHolds(m_list, word);
    return (m_sizes & sizeBit(word.size())) != 0 && m_keys.contains(caselessKey(word));
}

QStringView trimStopCharacters(QStringView text) {
    while (!text.isEmpty() && (contains(stopCharacters, text.back().unicode()) ||
                               contains(closingBrackets, text.back().unicode())))
        text.chop(1);
    return text;
}

QStringView trimQuoteMarks(QStringView text) {
    while (!text.isEmpty() && contains(quoteMarks, text.front().unicode()))
        text = text.sliced(1);
    while (!text.isEmpty() && contains(quoteMarks, text.back().unicode()))
        text.chop(1);
    return text;
}

QStringView StripBrackets(QStringView word) {
    while (!word.isEmpty() && contains(openingBrackets, word.front().unicode()))
        word = word.sliced(1);
    while (!word.isEmpty() && contains(closingBrackets, word.back().unicode()))
        word.chop(1);
    return word;
}

bool IsAbbreviation(QStringView word) {
    word = StripBrackets(word);
    if (word.endsWith(u"...") || word.endsWith(u'\u2026'))
        return true;
    if (word.size() < 4 || word.size() % 2 != 0 || !IsAlpha(word))
        return false;
    for (qsizetype position = 2; position <= word.size(); position += 2) {
        if (unitAt(word, position) != u'.')
            return false;
    }
    return true;
}

bool IsQuoteMark(QStringView text, qsizetype position) {
    const int before = unitAt(text, position - 2);
    const auto endsWord = [](int unit) {
        return unit == noUnit || unit == u' ' || unit == u'\'' || unit == u'"' ||
               isOneOf(stopCharacters, unit);
    };
    if ((before == u's' || before == u'S') && !endsWord(unitAt(text, position - 3)))
        return false;
    // The tails of contractions have two letters at most: three letters are enough to decide.
    std::array<char16_t, 3> letters{};
    std::size_t size = 0;
    for (; size < letters.size() && isLetterUnit(unitAt(text, position + static_cast<qsizetype>(size)));
         ++size)
        letters[size] = toLower(static_cast<char16_t>(unitAt(text, position + static_cast<qsizetype>(size))));
    const QStringView tail(letters.data(), static_cast<qsizetype>(size));
    static constexpr std::array<QStringView, 8> tails = {u"t", u"ve", u"nt", u"m", u"s", u"ll", u"d", u"re"};
    return std::find(tails.begin(), tails.end(), tail) == tails.end();
}

QStringView WordBefore(QStringView text, qsizetype position, bool hyphenBreaks) {
    qsizetype start = position;
    for (; start >= 1; --start) {
        const int unit = unitAt(text, start);
        const bool joins = unit == u'\'' || (unit == u'-' && !hyphenBreaks);
        if (!isLetterUnit(unit) && !(joins && isLetterUnit(unitAt(text, start - 1))))
            break;
    }
    return position < 1 ? QStringView() : text.sliced(start, position - start);
}

QStringView WordAfter(QStringView text, qsizetype position, qsizetype last, bool hyphenBreaks) {
    qsizetype end = position;
    for (; end <= last; ++end) {
        const int unit = unitAt(text, end);
        const bool joins = unit == u'\'' || (unit == u'-' && !hyphenBreaks);
        if (!isLetterUnit(unit) && !(joins && isLetterUnit(unitAt(text, end + 1))))
            break;
    }
    return text.sliced(position - 1, end - position);
}

void AddMessage(QString &list, const QString &message) {
    if (!list.isEmpty())
        list += u"\r\n";
    list += message;
}

QString quotesLeftOpen(bool inDouble, bool inSingle) {
    QString list;
    if (inDouble)
        AddMessage(list, QStringLiteral("There appears to be a closing quotes (\") missing"));
    if (inSingle)
        AddMessage(list, QStringLiteral("There appears to be a closing single quote (') missing"));
    return list;
}

bool AddressRules::IsWebOrFileName(QStringView word) const {
    word = trimQuoteMarks(trimStopCharacters(word));
    int slashes = 0;
    int stops = 0;
    bool slashOrColonBefore = false;
    for (const QChar c : word) {
        const bool slash = c == u'/' || c == u'\\';
        slashes += slash ? 1 : 0;
        stops += c == u'.' ? 1 : 0;
        if (slashes == 2 || stops == 2 || c == u'@' || (slash && slashOrColonBefore))
            return true;
        slashOrColonBefore = slash || c == u':';
    }
    if (stops == 0)
        return false;
    QString extension = fnExtension(word);
    extension.replace(u'\\', u'/');
    return m_isKnownExtension(extension) || m_domains.holds(extension);
}

} // namespace tolvo
