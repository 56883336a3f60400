// SPDX-License-Identifier: MIT
// The one object through which the program gets the spelling and grammar errors of a text, whatever provider
// does the work. It lives for one check.
#pragma once

#include "spelling/hunspell_provider.h"
#include "spelling/spelling_errors.h"
#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"

#include <QString>
#include <memory>

namespace tolvo {

class cTextMethods;

class CSpelling {
  public:
    CSpelling(const SpellingServices &services, const cTextMethods &textMethods);
    ~CSpelling();
    CSpelling(const CSpelling &) = delete;
    CSpelling &operator=(const CSpelling &) = delete;

    /// Prepares the provider; to be called once. Fills in a missing language (2057, for Word) or locale
    /// ("en-gb"). If Word is asked for but not available, that is reported, and Hunspell checks in the locale
    /// of `LangID` instead. An unknown provider is reported with failure 5002, and no check then finds
    /// anything.
    void init(int providerType, int &LangID, QString &localeName);

    /// Checks a text whose lines end in CR alone, and replaces the list of errors. True if there are any.
    /// False also if the provider didn't answer; the list then stays as it was. Fails with CheckCancelled if
    /// the user ended the wait. `grammar` has no effect on any provider.
    bool Spell(const QString &text);
    bool Spell(const QString &text, bool grammar);

    /// The errors of the last check. Copies are cheap.
    [[nodiscard]] const CSpellingErrors &SpellingErrors() const { return m_errors; }

    /// Remembers a word for later checks, if the provider can.
    void AddToCustomDic(const QString &word);
    /// Makes a word known to the local dictionary for this check, if the provider has one.
    void addForRun(const QString &word);
    /// The local dictionary's suggestions for a word; none if the provider has no local dictionary.
    [[nodiscard]] std::shared_ptr<CSpellingSuggestions> hunspellSuggest(const QString &word);

    /// The local dictionary's engine; null if the provider has none.
    [[nodiscard]] std::shared_ptr<HunspellEngine> engine() const {
        return m_dictionary ? m_dictionary->engine() : nullptr;
    }

    /// The provider in use, which is Hunspell if Word was asked for but not available.
    [[nodiscard]] int ProviderType() const { return m_providerType; }

  private:
    [[nodiscard]] QString langFromID(int LangID) const;
    void initLocal(QString &localeName);

    const SpellingServices &m_services;
    const cTextMethods &m_textMethods;
    std::unique_ptr<LocalDictionary> m_dictionary;
    int m_providerType = -1;
    bool m_grammar = false;
    CSpellingErrors m_errors;
    std::unique_ptr<SpellingProvider> m_provider; ///< destroyed first: it closes Word's document
};

} // namespace tolvo
