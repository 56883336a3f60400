// SPDX-License-Identifier: MIT
// The local dictionary: checks a text word by word, and proposes corrections.
#pragma once

#include "spelling/hunspell_engine.h"
#include "spelling/spelling_errors.h"
#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"

#include <memory>

namespace tolvo {

/// One dictionary with the personal word list, for one check. Other providers use it as well.
class LocalDictionary {
  public:
    /// Loads the dictionary of a locale ("en-gb") and the personal words. A dictionary that can't be loaded
    /// is reported with 5003; every word is then acceptable. Fails with 53 if there is no personal word list.
    void initHunspell(const SpellingServices &services, const QString &locale);

    [[nodiscard]] bool Spell(QStringView word) { return m_engine->Spell(word); }

    /// The words of a text that the dictionary doesn't know. A text of one character is never checked.
    [[nodiscard]] CSpellingErrors checkHunspell(const QString &text);

    /// An error for a word that isn't in the dictionary, its suggestions made when they are looked at.
    [[nodiscard]] std::shared_ptr<CSpellingSuggestions> hunspellSuggest(const QString &word);

  private:
    // Shared with suggestion lists that are still to be made.
    std::shared_ptr<HunspellEngine> m_engine = std::make_shared<HunspellEngine>();
};

/// Provider 1.
class HunspellProvider final : public SpellingProvider {
  public:
    HunspellProvider(const SpellingServices &services, LocalDictionary &dictionary)
        : m_services(services), m_dictionary(dictionary) {}

    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override {
        return m_dictionary.checkHunspell(text);
    }
    /// Appends to the personal word list; the check that is running doesn't know the word.
    void AddToCustomDic(const QString &word) override;

  private:
    const SpellingServices &m_services;
    LocalDictionary &m_dictionary;
};

} // namespace tolvo
