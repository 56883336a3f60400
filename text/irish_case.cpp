// SPDX-License-Identifier: MIT
#include "text/irish_case.h"

#include "base/language_case.h"

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

/// What may stand in front of a word. While the others change, a noncharacter stands for each.
constexpr std::array<QStringView, 8> prefixes = {u"b", u"bh", u"d", u"g", u"h", u"m", u"n", u"t"};
constexpr char16_t firstMarker = 0xFDD0;

bool isMarker(QChar c) {
    return c.unicode() >= firstMarker && c.unicode() < firstMarker + prefixes.size();
}

bool isVowel(QChar c) {
    return QStringView(u"aeiouáéíóú").contains(c.toLower());
}

/// In front of a word: how many letters, and whether a hyphen follows them that only small letters need.
struct Prefix {
    qsizetype letters = 0;
    qsizetype hyphen = 0;
};

Prefix prefixOf(QStringView word) {
    const auto unit = [&](qsizetype place) { return place < word.size() ? word[place] : QChar(); };
    const auto small = [&](qsizetype place) { return unit(place).toLower(); };
    const auto one = [](bool is) { return Prefix{is ? 1 : 0, 0}; };
    const bool beforeCapital = isVowel(unit(1)) && unit(1).isUpper();
    switch (unit(0).unicode()) {
    case u'b':
        return unit(1) == u'h' && small(2) == u'f' ? Prefix{2, 0} : one(small(1) == u'p');
    case u'd':
        return one(small(1) == u't');
    case u'g':
        return one(small(1) == u'c');
    case u'h':
        return one(beforeCapital);
    case u'm':
        return one(small(1) == u'b');
    case u'n':
    case u't':
        break;
    default:
        return {};
    }
    if (unit(1) == u'-' && isVowel(unit(2)))
        return {1, 1};
    if (unit(0) == u'n')
        return one(beforeCapital || small(1) == u'd' || small(1) == u'g');
    const bool beforeS = small(1) == u's' && (isVowel(unit(2)) || QStringView(u"lnr").contains(small(2)));
    return one(beforeCapital || beforeS);
}

/// The text with markers for its prefixes; with small letters to come, with the hyphens that those need.
QString prepared(QStringView text, bool small) {
    QString result;
    result.reserve(text.size() + text.size() / 8);
    bool inWord = false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const Prefix prefix = inWord ? Prefix() : prefixOf(text.sliced(i));
        inWord = text[i].isLetterOrNumber() || text[i].isMark();
        if (prefix.letters == 0) {
            result += text[i];
            continue;
        }
        const QStringView letters = text.sliced(i, prefix.letters);
        const auto place = std::find(prefixes.begin(), prefixes.end(), letters) - prefixes.begin();
        if (!small)
            result += QChar(static_cast<char16_t>(firstMarker + place));
        else
            result += letters;
        const bool needsHyphen = small && (letters == u"n" || letters == u"t") && isVowel(text[i + 1]);
        if (needsHyphen)
            result += u'-';
        i += prefix.letters - 1 + (small ? 0 : prefix.hyphen);
    }
    return result;
}

QString withPrefixes(const QString &text) {
    QString result;
    result.reserve(text.size() + text.size() / 8);
    for (const QChar c : text) {
        if (isMarker(c))
            result += prefixes.at(c.unicode() - firstMarker);
        else
            result += c;
    }
    return result;
}

} // namespace

QString irishCase(QStringView text, LanguageCaseSettings::Kind kind) {
    using Kind = LanguageCaseSettings::Kind;
    constexpr const char *language = "ga";
    if (kind == Kind::Lower)
        return lowerCaseIn(prepared(text, true), language);
    const bool hasMarkers = std::any_of(text.begin(), text.end(), isMarker);
    const QString marked = hasMarkers ? text.toString() : prepared(text, false);
    const QString mapped =
        kind == Kind::Upper ? upperCaseIn(marked, language) : titleCaseIn(marked, language);
    return hasMarkers ? mapped : withPrefixes(mapped);
}

} // namespace tolvo
