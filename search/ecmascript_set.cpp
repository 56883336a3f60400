// SPDX-License-Identifier: MIT
#include "search/ecmascript_set.h"

#include "base/numbers.h"

#include <algorithm>

namespace tolvo {

const QStringView lineStartAssertion = u"(?<![^\\n\\r\\x{2028}\\x{2029}])";
const QStringView lineEndAssertion = u"(?![^\\n\\r\\x{2028}\\x{2029}])";
const QStringView wordBoundary = u"(?-i:(?(?<=[0-9A-Z_a-z])(?![0-9A-Z_a-z])|(?=[0-9A-Z_a-z])))";
const QStringView noWordBoundary = u"(?-i:(?(?<=[0-9A-Z_a-z])(?=[0-9A-Z_a-z])|(?![0-9A-Z_a-z])))";

namespace {

constexpr QStringView notWord = u"\\x{0}-/:-@\\[-\\^`\\{-\\x{ffff}";
/// The same without the long s and the Kelvin sign: beside other members of a set, without regard to case,
/// the engine would take them for an s and a k, and the set would hold these two letters.
constexpr QStringView notWordInSet = u"\\x{0}-/:-@\\[-\\^`\\{-\\x{17e}\\x{180}-\\x{2129}\\x{212b}-\\x{ffff}";

bool isLetter(char16_t unit) {
    return (unit >= u'A' && unit <= u'Z') || (unit >= u'a' && unit <= u'z');
}

/// Up to three octal digits, at most 377.
CharacterEscape readOctal(QStringView text) {
    int code = 0;
    qsizetype i = 0;
    while (i < std::min<qsizetype>(text.size(), 3) && text[i] >= u'0' && text[i] <= u'7' &&
           code * 8 + (text[i].unicode() - u'0') <= 255)
        code = code * 8 + (text[i++].unicode() - u'0');
    return {static_cast<char16_t>(code), i};
}

/// \xHH and \uHHHH; without its digits the letter itself.
CharacterEscape readHexadecimal(QStringView text, qsizetype digits) {
    const QStringView hex = text.sliced(1, std::min(digits, text.size() - 1));
    if (hex.size() < digits || !IsHex(hex))
        return {text[0].unicode(), 1};
    QString value = hex.toString();
    return {static_cast<char16_t>(HexToNumber(value)), digits + 1};
}

/// \cX gives the control character of a letter; anything else leaves the backslash as a character.
CharacterEscape readControl(QStringView text, bool inSet) {
    const char16_t unit = text.size() > 1 ? text[1].unicode() : u'\0';
    if (isLetter(unit) || (inSet && ((unit >= u'0' && unit <= u'9') || unit == u'_')))
        return {static_cast<char16_t>(unit % 32), 2};
    return {u'\\', 0};
}

CharacterEscape readEscape(QStringView text, bool inSet) {
    switch (const char16_t unit = text[0].unicode()) {
    case u'f':
        return {u'\f', 1};
    case u'n':
        return {u'\n', 1};
    case u'r':
        return {u'\r', 1};
    case u't':
        return {u'\t', 1};
    case u'v':
        return {u'\v', 1};
    case u'c':
        return readControl(text, inSet);
    case u'x':
        return readHexadecimal(text, 2);
    case u'u':
        return readHexadecimal(text, 4);
    default:
        if (unit >= u'0' && unit <= u'7')
            return readOctal(text);
        return {unit, 1};
    }
}

/// One member of a set: a character, or a class with its members.
struct Member {
    QStringView members;
    char16_t unit = 0;
    qsizetype length = 0;

    [[nodiscard]] QString pattern() const {
        return members.isEmpty() ? patternCharacter(unit) : members.toString();
    }
};

Member readMember(QStringView text, bool matchCase) {
    if (text[0] != u'\\' || text.size() == 1)
        return {{}, text[0].unicode(), 1};
    const char16_t letter = text[1].unicode();
    if (letter == u'W' && !matchCase)
        return {notWordInSet, 0, 2};
    if (const QStringView members = classMembers(letter); !members.isEmpty())
        return {members, 0, 2};
    if (letter == u'b')
        return {{}, u'\b', 2};
    const CharacterEscape escape = readEscape(text.sliced(1), true);
    return {{}, escape.unit, escape.length + 1};
}

} // namespace

QString patternCharacter(char16_t unit) {
    if (isLetter(unit) || (unit >= u'0' && unit <= u'9'))
        return QChar(unit);
    return QStringLiteral("\\x{%1}").arg(uint(unit), 0, 16);
}

QStringView classMembers(char16_t letter) {
    switch (letter) {
    case u'd':
        return u"0-9";
    case u'D':
        return u"\\x{0}-/:-\\x{ffff}";
    case u'w':
        return u"0-9A-Z_a-z";
    case u'W':
        return notWord;
    case u's':
        return u"\\x{9}-\\x{d}\\x{20}\\x{a0}\\x{1680}\\x{2000}-\\x{200a}\\x{2028}\\x{2029}\\x{202f}\\x{205f}"
               u"\\x{3000}\\x{feff}";
    case u'S':
        return u"\\x{0}-\\x{8}\\x{e}-\\x{1f}\\x{21}-\\x{9f}\\x{a1}-\\x{167f}\\x{1681}-\\x{1fff}"
               u"\\x{200b}-\\x{2027}\\x{202a}-\\x{202e}\\x{2030}-\\x{205e}\\x{2060}-\\x{2fff}"
               u"\\x{3001}-\\x{fefe}\\x{ff00}-\\x{ffff}";
    default:
        return {};
    }
}

CharacterEscape readCharacterEscape(QStringView text) {
    return readEscape(text, false);
}

TranslatedSet translateSet(QStringView text, bool matchCase) {
    const bool negated = text.startsWith(u'^');
    qsizetype at = negated ? 1 : 0;
    QString members;
    while (at < text.size() && text[at] != u']') {
        const Member low = readMember(text.sliced(at), matchCase);
        at += low.length;
        if (at + 1 >= text.size() || text[at] != u'-' || text[at + 1] == u']') {
            members += low.pattern();
            continue;
        }
        const Member high = readMember(text.sliced(at + 1), matchCase);
        at += high.length + 1;
        if (!low.members.isEmpty() || !high.members.isEmpty())
            members += low.pattern() + patternCharacter(u'-') + high.pattern();
        else if (low.unit > high.unit)
            return {.pattern = {}, .error = QStringLiteral("a range in square brackets is out of order")};
        else
            members += low.pattern() + u'-' + high.pattern();
    }
    if (at >= text.size())
        return {.pattern = {}, .error = QStringLiteral("a square bracket [ is not closed")};
    if (members.isEmpty())
        return {.pattern = negated ? QStringLiteral("(?s:.)") : QStringLiteral("[^\\x{0}-\\x{ffff}]"),
                .error = {},
                .length = at + 1};
    return {.pattern = (negated ? QStringLiteral("[^") : QStringLiteral("[")) + members + u']',
            .error = {},
            .length = at + 1};
}

} // namespace tolvo
