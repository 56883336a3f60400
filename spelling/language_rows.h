// SPDX-License-Identifier: MIT
// The languages that the user can choose, what stands for them in a settings string, and which dictionary a
// choice means.
#pragma once

#include "spelling/dictionaries.h"
#include "spelling/languages.h"

#include <QList>
#include <QString>

namespace tolvo {

/// A row to choose a language by.
struct LanguageRow {
    CSpellLanguage language;
    QString place;         ///< of its dictionary, in words; empty for a language of Word
    DictionaryFiles files; ///< empty if there is no dictionary
};

/// The rows of a provider's quick list. For Word those of LanguageList. For any other the entries of
/// `HunLangList` and then all languages found; if `HunQuickList` names locales, those of them only, in its
/// order.
[[nodiscard]] QList<LanguageRow> languageRows(const SpellingServices &services, int providerType);

/// One row of the window of Hunspell's languages.
struct HunspellRow {
    HunspellLanguage language;
    QString place; ///< of its dictionary, in words
    /// The dictionary, if the user has added it; else empty.
    DictionaryFiles added;
};

/// `HunLangList` as that window reads it, then the other languages found.
[[nodiscard]] QList<HunspellRow> hunspellWindowRows(const SpellingServices &services);

/// The number that stands for a language without a number of Windows: below -2, and the same on every
/// machine.
[[nodiscard]] int ownLanguageNumber(const QString &locale);

/// The locale of the dictionary to check with, for a chosen number. Empty, which stands for the default, if
/// no language has been chosen or the chosen one has no dictionary here.
[[nodiscard]] QString chosenLocale(const SpellingServices &services, int LangID);

/// What the title of a check says of the language: the name of Word's language of that number; else, for
/// another dictionary than the default, its name. For a language without a dictionary it says what is used
/// instead.
[[nodiscard]] QString languageInTitle(const SpellingServices &services, int LangID);

/// The row to begin with: that of the number; while none has been chosen that of the stored locale, or, if
/// none is stored, that of the desktop's language, or of the default. -1 if there is no such row.
[[nodiscard]] int firstRow(const QList<LanguageRow> &rows, const SpellingServices &services, int LangID);

} // namespace tolvo
