// SPDX-License-Identifier: MIT
// The local dictionary: checks a text word by word and suggests corrections.
#pragma once

#include "spelling/hunspell_engine.h"
#include "spelling/skipped_words.h"
#include "spelling/spelling_errors.h"
#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"
#include "spelling/word_finder.h"

#include <memory>

namespace tolvo {

/// One dictionary with the user's own words, for one check. Other providers use it as well.
class LocalDictionary {
  public:
    /// Loads the dictionary of a locale ("en-gb") and the user's own words. A dictionary that can't be loaded
    /// is reported with failure 5003; every word is then correct. Fails as readUserDictionary.
    void initHunspell(const SpellingServices &services, const QString &locale);

    /// The locale of initHunspell.
    [[nodiscard]] const QString &locale() const { return m_locale; }

    /// True if the word is spelled correctly, as HunspellEngine::Spell.
    [[nodiscard]] bool Spell(QStringView word) { return m_engine->Spell(word); }

    /// As HunspellEngine::Add.
    void Add(const QString &word) { m_engine->Add(word); }

    [[nodiscard]] const std::shared_ptr<HunspellEngine> &engine() const { return m_engine; }

    /// Words that are not checked from now on.
    void skip(SkippedWords skipped) { m_skipped = std::move(skipped); }

    /// The words of a text that the dictionary doesn't know, each as an error. A text of one character has
    /// none.
    [[nodiscard]] CSpellingErrors checkHunspell(const QString &text);

    /// The suggestions for a word, found when they are first looked at.
    [[nodiscard]] std::shared_ptr<CSpellingSuggestions> hunspellSuggest(const QString &word);

  private:
    [[nodiscard]] bool isGood(QStringView text, const FoundWord &word);

    // Shared with the suggestion lists, which use it later.
    std::shared_ptr<HunspellEngine> m_engine = std::make_shared<HunspellEngine>();
    QString m_locale;
    WordFinder m_words;
    SkippedWords m_skipped;
};

/// Provider 1.
class HunspellProvider final : public SpellingProvider {
  public:
    HunspellProvider(const SpellingServices &services, LocalDictionary &dictionary)
        : m_services(services), m_dictionary(dictionary) {}

    /// Always a list; it is empty for a text without errors.
    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override {
        return m_dictionary.checkHunspell(text);
    }
    /// Appends the word to the user's dictionary of the locale, which the next check reads.
    void AddToCustomDic(const QString &word) override;

  private:
    const SpellingServices &m_services;
    LocalDictionary &m_dictionary;
};

} // namespace tolvo
