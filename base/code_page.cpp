// SPDX-License-Identifier: MIT
#include "base/code_page.h"

#include <QChar>
#include <algorithm>
#include <array>

namespace tolvo {

namespace {

// Codes 128 to 159; the other codes are those of Latin-1.
constexpr std::array<char16_t, 32> upperRows = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr bool isMultiplicationOrDivision(char16_t unit) {
    return unit == 0x00D7 || unit == 0x00F7;
}

} // namespace

std::uint8_t toAnsi(char16_t unit) {
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<std::uint8_t>(unit);
    const auto *const place = std::find(upperRows.begin(), upperRows.end(), unit);
    return place == upperRows.end() ? std::uint8_t{'?'}
                                    : static_cast<std::uint8_t>(0x80 + (place - upperRows.begin()));
}

char16_t fromAnsi(std::uint8_t code) {
    return code >= 0x80 && code < 0xA0 ? upperRows[code - 0x80U] : char16_t{code};
}

bool isUpperLetter(char16_t unit) {
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z';
    if (unit <= 0xFF)
        return unit >= 0xC0 && unit <= 0xDE && !isMultiplicationOrDivision(unit);
    return unit == 0x0160 || unit == 0x0152 || unit == 0x017D || unit == 0x0178;
}

bool isLowerLetter(char16_t unit) {
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z';
    if (unit <= 0xFF)
        return (unit >= 0xDF && !isMultiplicationOrDivision(unit)) || unit == 0xAA || unit == 0xB5 ||
               unit == 0xBA;
    return unit == 0x0192 || unit == 0x0161 || unit == 0x0153 || unit == 0x017E;
}

bool isLetter(char16_t unit) {
    return isUpperLetter(unit) || isLowerLetter(unit);
}

bool IsAlpha(QStringView text) {
    return !text.isEmpty() && isLetter(text.front().unicode());
}

char16_t toUpper(char16_t unit) {
    if (unit < 0x80)
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 0x20) : unit;
    return QChar(unit).toUpper().unicode();
}

char16_t toLower(char16_t unit) {
    if (unit < 0x80)
        return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;
    // U+0130 is the one unit whose lower case has two characters.
    return unit == 0x0130 ? unit : QChar(unit).toLower().unicode();
}

namespace {

QString mapped(QStringView text, char16_t (*map)(char16_t)) {
    QString result(text.size(), Qt::Uninitialized);
    std::transform(text.utf16(), text.utf16() + text.size(), reinterpret_cast<char16_t *>(result.data()),
                   map);
    return result;
}

} // namespace

QString toUpper(QStringView text) {
    return mapped(text, toUpper);
}

QString toLower(QStringView text) {
    return mapped(text, toLower);
}

bool equalsIgnoringCase(QStringView a, QStringView b) {
    return a.size() == b.size() &&
           std::equal(a.utf16(), a.utf16() + a.size(), b.utf16(), [](char16_t x, char16_t y) {
               return x == y || toUpper(x) == toUpper(y) || toLower(x) == toLower(y);
           });
}

} // namespace tolvo
