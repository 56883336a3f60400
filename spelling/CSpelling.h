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

    /// Called once. Fills in a missing language (2057 for Word) or locale ("en-gb"). Word that can't be had
    /// is reported and replaced by Hunspell, in the locale of `LangID`. An unknown provider is reported with
    /// 5002; no check then finds anything.
    void init(int providerType, int &LangID, QString &localeName);

    /// Replaces the list of errors; true if there is one. False without a new list if the provider didn't
    /// answer. Fails with CheckCancelled. `grammar` is remembered; no provider behaves differently for it.
    bool Spell(const QString &text);
    bool Spell(const QString &text, bool grammar);

    /// Copies cost nothing.
    [[nodiscard]] const CSpellingErrors &SpellingErrors() const { return m_errors; }

    void AddToCustomDic(const QString &word);
    /// The local dictionary's suggestions; none for a provider without one.
    [[nodiscard]] std::shared_ptr<CSpellingSuggestions> hunspellSuggest(const QString &word);

    /// The provider in use, which differs from the one asked for if Word couldn't be had.
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
    std::unique_ptr<SpellingProvider> m_provider; ///< ends first: Word's document is closed before all else
};

} // namespace tolvo
