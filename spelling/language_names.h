// SPDX-License-Identifier: MIT
// What languages call themselves, from the locale data of Unicode (https://cldr.unicode.org).
#pragma once

#include <QString>

namespace tolvo {

/// The name of a locale in its own language, as a list shows it; in English where the data lack that; the
/// locale itself where they don't know the language.
///   languageName("de-at") is "Deutsch (Österreich)", languageName("xq-zz") is "xq-zz"
[[nodiscard]] QString languageName(const QString &locale);

/// Whether the data know the language of a locale: isKnownLanguage("de-de-frami"), not
/// isKnownLanguage("dictionary").
[[nodiscard]] bool isKnownLanguage(const QString &locale);

/// The language of a locale without its territory: languageOf("de-at") is "de".
[[nodiscard]] QString languageOf(const QString &locale);

/// Whether a locale has the territory that its language is first thought of with, or none: "de-de" and "de",
/// not "de-at".
[[nodiscard]] bool isOfMainTerritory(const QString &locale);

/// The name of a locale's territory in the locale's language; empty if it has none: territoryName("de-at") is
/// "Österreich".
[[nodiscard]] QString territoryName(const QString &locale);

} // namespace tolvo
