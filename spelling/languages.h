// SPDX-License-Identifier: MIT
// The lists of languages in the settings store: entries separated by "#", fields by "|". Language numbers are
// those of Windows, as [MS-LCID], Windows Language Code Identifier Reference, lists them.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

namespace tolvo {

class Locales;
class SettingsStore;
class WordAutomation;

/// In place of a language number: as an answer, the user cancelled; as a question, the stored language.
inline constexpr int languageCancelled = -2;

/// A language to choose for a check.
struct CSpellLanguage {
    QString LangLocal;   ///< what the language calls itself
    QString Description; ///< its English name
    QString Locale;      ///< Hunspell's name, empty for a language of Word
    int ID = 0;          ///< Windows language number, -1 for Word's default

    static CSpellLanguage Constructor_Hun(const QString &locale, const QString &langLocal,
                                          const QString &description, int id) {
        return {langLocal, description, locale, id};
    }
    static CSpellLanguage Constructor_Word(const QString &langLocal, const QString &description, int id) {
        return {langLocal, description, {}, id};
    }
    /// The row of a list: "English (United Kingdom) - English".
    [[nodiscard]] QString row() const { return Description + QStringLiteral(" - ") + LangLocal; }
};

/// One row of Hunspell's own list of languages.
struct HunspellLanguage {
    QString locale;
    QString language;
    QString territory;
};

/// The section `Spelling` of the store, read as lists. Entries that don't have their fields are passed over.
class LanguageList {
  public:
    explicit LanguageList(SettingsStore &store) : m_store(store) {}

    /// Word's languages (`DictionaryList`).
    [[nodiscard]] QList<CSpellLanguage> wordLanguages() const;
    /// The name of the language of Word with a number; empty if Word has none.
    [[nodiscard]] QString langFromID(int LangID) const;

    /// The languages of Word that `QuickList` names.
    [[nodiscard]] QList<CSpellLanguage> wordQuickLanguages() const;
    /// The entries of `HunLangList` as the quick list reads them; -1 is the number of a locale that the table
    /// doesn't have.
    [[nodiscard]] QList<CSpellLanguage> hunspellList(const Locales &locales) const;

    /// `HunLangList` as its window reads it: locale, language, territory.
    [[nodiscard]] QList<HunspellLanguage> hunspellLanguages() const;

    /// The numbers of `QuickList`.
    [[nodiscard]] QStringList wordQuickList() const;
    void saveWordQuickList(const QStringList &numbers);
    void saveWordLanguages(const QString &list);

    [[nodiscard]] bool useWordDialog() const;
    void saveUseWordDialog(bool use);
    [[nodiscard]] int provider() const;
    [[nodiscard]] int storedLangID() const;
    void saveLangID(int LangID);

  private:
    SettingsStore &m_store;
};

/// Reads Word's languages, its default first, in the form of `DictionaryList`. `cancelled` is asked before
/// each language and may let pending events run; if it returns true, the result is empty. Word has quit in
/// any case.
[[nodiscard]] QString readWordLanguages(WordAutomation &automation, const std::function<bool()> &cancelled);

} // namespace tolvo
