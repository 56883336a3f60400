// SPDX-License-Identifier: MIT
// Gen_Procs: digit tests, numerals, numbers in messages.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// True for a non-empty string of the digits "0" to "9". Fails with an overflow for 32768 characters or more:
/// its counter is a 16-bit one.
[[nodiscard]] bool IsNumber(QStringView text);

/// True if every character is a hexadecimal digit, in either case. True for the empty string.
[[nodiscard]] bool IsHex(QStringView text);

/// Makes the string upper case in place and returns its hexadecimal value. A character outside
/// "0123456789ABCDEF" subtracts 1 and shifts nothing: callers test with IsHex first. Fails with an overflow
/// beyond 32 bits.
int HexToNumber(QString &text);

/// The number at the front of a text, by the rule of text-to-number conversion: blanks, TABs and LFs are
/// skipped wherever they stand; sign, digits with at most one point, an exponent (E or D), or "&H" or "&O"
/// with hexadecimal or octal digits; the first other character ends it. No number gives 0. "12 34" is 1234,
/// "3,000" is 3, "1E3" is 1000.
[[nodiscard]] double ValueOf(QStringView text);

/// The number with a comma between groups of three digits, always: 65535 is "65,535".
[[nodiscard]] QString groupedNumber(qint64 number);

/// Rounds half to even, on the decimal value: 2.5 is 2, 3.5 is 4.
[[nodiscard]] double roundHalfToEven(double value, int places = 0);

/// Upper-case Roman numeral of 1 to 4999; "?" below 1, "???" from 5000 on.
[[nodiscard]] QString ToRoman(int number);

/// Letters for a number from 0: a to z, then aa, ab and so on; 701 is zz.
[[nodiscard]] QString ToLetters(int number);

/// The floor of r * (high - low + 1) + low, with r random in 0 up to 1.
[[nodiscard]] int RandomInRange(int low, int high);

/// A number as text, in the shortest form: 12 is "12", 0.5 is "0.5".
[[nodiscard]] QString numberText(double number);

} // namespace tolvo
