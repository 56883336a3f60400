// SPDX-License-Identifier: MIT
// What a text mentions: each find on a line of its own, in the order of the text, as it stands there.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace tolvo {

/// Addresses with "://" or that begin with "www.", without the punctuation after them; a closing bracket
/// belongs to one that has the opening one.
///   webAddresses(u"See (https://a.example/x_(y)), www.b.example.") is {"https://a.example/x_(y)",
///   "www.b.example"}
[[nodiscard]] QStringList webAddresses(QStringView text);

/// Mail addresses in their usual form: letters, digits and !#$%&'*+-/=?^_`{|}~. before "@", a name with a
/// stop after it (RFC 5321, section 4.1.2, without quoted ones).
[[nodiscard]] QStringList mailAddresses(QStringView text);

/// Numbers with their sign, groups, decimals and exponent; none that is part of a word.
///   numbersIn(u"-3.5 of 1,000 and 2e-3, x2") is {"-3.5", "1,000", "2e-3"}
[[nodiscard]] QStringList numbersIn(QStringView text);

/// Dates in figures (2026-11-23, 23.11.2026, 11/23/26) and with the name of a month in English, German,
/// French, Polish or Spanish (23 November 2026, November 23, 2026, 23. November). Figures that don't
/// make a day of the calendar don't count.
[[nodiscard]] QStringList datesIn(QStringView text);

} // namespace tolvo
