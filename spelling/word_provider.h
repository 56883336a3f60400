// SPDX-License-Identifier: MIT
// Microsoft Word as a provider of errors, without its dialog.
#pragma once

#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"
#include "spelling/word_automation.h"

#include <memory>

namespace tolvo {

/// Provider 0. The destructor closes the document and quits Word.
class WordProvider final : public SpellingProvider {
  public:
    /// Starts Word for a language. Nothing if that fails, which is reported as instantiateWord's.
    [[nodiscard]] static std::unique_ptr<WordProvider> instantiateWord(const SpellingServices &services,
                                                                       int LangID);
    ~WordProvider() override;

    /// Word's spelling errors; never its grammar errors.
    [[nodiscard]] std::optional<CSpellingErrors> check(const QString &text) override;
    /// Appends the word to Word's active custom dictionary.
    void AddToCustomDic(const QString &word) override;

  private:
    WordProvider(const SpellingServices &services, std::unique_ptr<WordApplication> word, int LangID)
        : m_services(services), m_word(std::move(word)), m_langID(LangID) {}

    const SpellingServices &m_services;
    std::unique_ptr<WordApplication> m_word;
    int m_langID;
};

} // namespace tolvo
