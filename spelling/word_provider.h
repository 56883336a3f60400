// SPDX-License-Identifier: MIT
// Microsoft Word as a list of errors, without its dialog.
#pragma once

#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"
#include "spelling/word_automation.h"

#include <memory>

namespace tolvo {

/// Provider 0. At its end the document is closed and Word quits.
class WordProvider final : public SpellingProvider {
  public:
    /// Nothing, reported as instantiateWord, if Word can't be had.
    [[nodiscard]] static std::unique_ptr<WordProvider> instantiateWord(const SpellingServices &services,
                                                                       int LangID);
    ~WordProvider() override;

    /// Spelling errors only.
    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override;
    /// Appends to Word's active custom dictionary.
    void AddToCustomDic(const QString &word) override;

  private:
    WordProvider(const SpellingServices &services, std::unique_ptr<WordApplication> word, int LangID)
        : m_services(services), m_word(std::move(word)), m_langID(LangID) {}

    const SpellingServices &m_services;
    std::unique_ptr<WordApplication> m_word;
    int m_langID;
};

} // namespace tolvo
