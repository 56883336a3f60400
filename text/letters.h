// SPDX-License-Identifier: MIT
// Letters in another form: without accents, in one piece, without what nobody sees.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Latin and Greek letters without their accents; ligatures and letters with a stroke as plain ones. Other
/// scripts, where a mark makes another letter, stay as they are.
///   withoutAccents(u"Żółć, œuvre, straße") == u"Zolc, oeuvre, strasse"
[[nodiscard]] QString withoutAccents(QStringView text);

/// Letters and their accents in one piece (normal form C of Unicode, UAX #15).
[[nodiscard]] QString composed(QStringView text);

/// Typographic ligatures as the letters they are made of: u"ﬁsh" gives "fish". Letters of a language, such as
/// æ, stay.
[[nodiscard]] QString withoutLigatures(QStringView text);

/// Without what shows nothing: zero-width characters, soft hyphens, marks of direction, control characters.
/// Tabs and line ends stay, no-break and other special blanks become ordinary ones, the line separators of
/// Unicode line ends. Joiners stay where they mean something: between emoji and in scripts that join their
/// letters.
[[nodiscard]] QString withoutUnseen(QStringView text);

/// Each line with its characters in reverse, letters together with their accents.
///   reversedCharacters(u"ab|cd") == u"ba|dc"
[[nodiscard]] QString reversedCharacters(QStringView text);

} // namespace tolvo
