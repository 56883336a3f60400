// SPDX-License-Identifier: MIT
// Gen_Procs: digit tests, numerals, numbers in messages.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// True for a non-empty string of the digits "0" to "9". Fails with an overflow for 32768 characters or more.
[[nodiscard]] bool IsNumber(QStringView text);

/// True if every character is a hexadecimal digit in any case. True for the empty string.
[[nodiscard]] bool IsHex(QStringView text);

/// Returns the value of a hexadecimal number: "fF" is 255, "" is 0. Changes the string to upper case. A
/// character that is not a hexadecimal digit subtracts 1 without a shift, so callers test with IsHex first.
/// Fails with an overflow beyond 32 bits.
int HexToNumber(QString &text);

/// The number at the front of a text, 0 if there is none: "12 34" is 1234, "3,000" is 3, "1E3" is 1000,
/// "&HfF" is 255. It has an optional sign, digits with at most one point and an optional exponent (E or D),
/// or it is "&H" or "&O" with hexadecimal or octal digits. Blanks, TABs and LFs are skipped everywhere; the
/// first other character ends it.
[[nodiscard]] double ValueOf(QStringView text);

/// The number with a comma between groups of three digits, whatever the locale: 65535 is "65,535".
[[nodiscard]] QString groupedNumber(qint64 number);

/// Rounds to a number of decimal places, halves to even: 2.5 is 2, 1.5 is 2. The shortest decimal form of the
/// value decides what is a half, so 0.125 rounds to 0.12 at two places.
[[nodiscard]] double roundHalfToEven(double value, int places = 0);

/// The Roman numeral of 1 to 4999 in upper case, subtractive form: 1994 is "MCMXCIV". "?" below 1, "???" from
/// 5000 on.
[[nodiscard]] QString ToRoman(int number);

/// Letters that count from 0: 0 is "a", 25 is "z", 26 is "aa", 701 is "zz". Empty for a negative number.
[[nodiscard]] QString ToLetters(int number);

/// A random integer from `low` to `high`, both included.
[[nodiscard]] int RandomInRange(int low, int high);

/// A number as text, with at most 15 significant digits and no trailing zeros: 12 is "12", 0.5 is "0.5".
[[nodiscard]] QString numberText(double number);

} // namespace tolvo
