// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Capitals, small letters or titles as a language writes them, by Unicode's mappings (the Unicode Standard,
/// section 5.18). `language` is a two-letter code (ISO 639), empty for none in particular. The result may be
/// longer or shorter; lone halves of surrogate pairs stay.
///   upperCaseIn(u"istanbul", "tr") == u"İSTANBUL"
///   upperCaseIn(u"Όμηρος", "el") == u"ΟΜΗΡΟΣ"
///   titleCaseIn(u"ijsland", "nl") == u"IJsland"
[[nodiscard]] QString upperCaseIn(QStringView text, const char *language);
[[nodiscard]] QString lowerCaseIn(QStringView text, const char *language);
/// Every word with a capital, its other letters small.
[[nodiscard]] QString titleCaseIn(QStringView text, const char *language);

} // namespace tolvo
