// SPDX-License-Identifier: MIT
// Signs as printed texts have them: quotation marks, dashes, ellipses, primes and no-break blanks by the
// rules of a language, and plain ones for program text. Sources: New Hart's Rules (British), The Chicago
// Manual of Style (American), DIN 5008 (German), the Lexique of the Imprimerie nationale (French), Zasady
// pisowni i interpunkcji polskiej (Polish), Ortografía de la lengua española (Spanish).
#pragma once

#include "text/writing_settings.h"

namespace tolvo {

/// The text as the language prints it. Quotation marks of any language are set anew, a quotation inside
/// another with the language's inner marks; apostrophes, and primes after numbers, are told from them.
/// "--" and "---" become dashes, a hyphen between blanks or years too, three stops an ellipsis. With
/// `blanks`, what must not be parted at a line's end is kept together by no-break blanks.
///   German: u"\"Er sagte 'nein'\" - 5 km" gives „Er sagte ‚nein‘“ – 5 km
[[nodiscard]] QString typographic(QStringView text, const TypographySettings &settings);

/// The same signs as ASCII ones, as programs want them: straight quotes, hyphens ("--" for the long dash),
/// three stops, ordinary blanks.
///   straightSigns(u"«\u00A0été\u00A0» — 5′…") == u"\"été\" -- 5'..."
[[nodiscard]] QString straightSigns(QStringView text);

} // namespace tolvo
