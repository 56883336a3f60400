// SPDX-License-Identifier: MIT
// The 8-bit character set Windows-1252: the letters that make up words, and characters by their 8-bit code.
// Upper and lower case are mapped one code unit at a time, for all of Unicode's basic plane. Sources:
// https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT for the code table, the simple
// case mappings of https://www.unicode.org/Public/UNIDATA/UnicodeData.txt for upper and lower case.
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>

namespace tolvo {

/// The code of a character in Windows-1252; 63 ('?') for a character outside it: toAnsi(u'€') == 0x80.
[[nodiscard]] std::uint8_t toAnsi(char16_t unit);

/// The character of a Windows-1252 code: fromAnsi(0x80) == u'€'. The five codes without a character give the
/// control character of that code.
[[nodiscard]] char16_t fromAnsi(std::uint8_t code);

/// True for the letters of Windows-1252 (ASCII and accented Latin ones), false for everything else, Greek and
/// Cyrillic letters included.
[[nodiscard]] bool isLetter(char16_t unit);
/// True for the upper-case or the lower-case letters among them. The ordinal signs and the micro sign count
/// as lower case.
[[nodiscard]] bool isUpperLetter(char16_t unit);
[[nodiscard]] bool isLowerLetter(char16_t unit);

/// The letter test on the first character of a string; false for the empty string.
[[nodiscard]] bool IsAlpha(QStringView text);

/// The upper-case or lower-case form of one code unit. A unit whose mapping would need more than one unit is
/// returned as it is, and so is each half of a surrogate pair.
[[nodiscard]] char16_t toUpper(char16_t unit);
[[nodiscard]] char16_t toLower(char16_t unit);
/// The same for every unit of a text, so the length never changes: toUpper(u"éß") == u"Éß".
[[nodiscard]] QString toUpper(QStringView text);
[[nodiscard]] QString toLower(QStringView text);

/// Compares without regard to case, unit by unit: "Été" equals "éTÉ", "ss" doesn't equal "ß".
[[nodiscard]] bool equalsIgnoringCase(QStringView a, QStringView b);

} // namespace tolvo
