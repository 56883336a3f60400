// SPDX-License-Identifier: MIT
// The user's own dictionary of each language: a plain file of words that the dictionary of the language
// lacks.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

struct SpellingServices;

/// The file of a locale. That of British English is persdict.dat, those of others lie beside it:
///   "en-gb" gives ".../persdict.dat", "de-AT" gives ".../persdict_de_at.dat"
[[nodiscard]] QString userDictionaryPath(const SpellingServices &services, const QString &locale);

/// The words of a locale, blank lines too. A missing file holds no words, unless it is that of British
/// English: then this fails with 53. Fails with 75 for a file that can't be read.
[[nodiscard]] QStringList readUserDictionary(const SpellingServices &services, const QString &locale);

/// Creates an empty file for a locale if it has none. One that can't be created is not reported here: the
/// first use of it is.
void ensureUserDictionary(const SpellingServices &services, const QString &locale);

/// Adds a word for later checks in a locale, whose file is created if need be, but for that of British
/// English. A failure is reported as AddWordToDict's.
void addUserWord(const SpellingServices &services, const QString &locale, const QString &word);

} // namespace tolvo
