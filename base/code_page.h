// SPDX-License-Identifier: MIT
// The 8-bit character set Windows-1252: the letters that make up words, and characters by their 8-bit code.
// Upper and lower case go code unit by code unit, for all of Unicode's basic plane. Published source of the
// code table: https://www.unicode.org/Public/MAPPINGS/VENDORS/MICSFT/WINDOWS/CP1252.TXT
#pragma once

#include <QString>
#include <QStringView>
#include <cstdint>

namespace tolvo {

/// The code of a character in Windows-1252; '?' (63) for a character outside it.
[[nodiscard]] std::uint8_t toAnsi(char16_t unit);

/// The character of a Windows-1252 code. The five codes without a character give the control character of
/// that code.
[[nodiscard]] char16_t fromAnsi(std::uint8_t code);

/// True for the letters of Windows-1252 (ASCII and accented Latin ones), false for all else, Greek and
/// Cyrillic included.
[[nodiscard]] bool IsLetter(char16_t unit);
/// True for the upper-case (lower-case) letters among them.
[[nodiscard]] bool IsUpperLetter(char16_t unit);
[[nodiscard]] bool IsLowerLetter(char16_t unit);

/// The letter test on the first character of a string; false for the empty string.
[[nodiscard]] bool IsAlpha(QStringView text);

/// Simple case mapping of one code unit; a unit whose mapping would change the length stays as it is.
[[nodiscard]] char16_t toUpper(char16_t unit);
[[nodiscard]] char16_t toLower(char16_t unit);
/// The same for every unit of a text: the length never changes.
[[nodiscard]] QString toUpper(QStringView text);
[[nodiscard]] QString toLower(QStringView text);

/// Comparison without regard to case, unit by unit.
[[nodiscard]] bool equalsIgnoringCase(QStringView a, QStringView b);

} // namespace tolvo
