// SPDX-License-Identifier: MIT
#include "spelling/word_provider.h"

#include "platform/report_error.h"

namespace tolvo {

std::unique_ptr<WordProvider> WordProvider::instantiateWord(const SpellingServices &services, int LangID) {
    std::unique_ptr<WordProvider> provider;
    reportFailures(services.boxes, QStringLiteral("CSpelling"), QStringLiteral("instantiateWord"), [&] {
        std::unique_ptr<WordApplication> word = services.word.create();
        word->addDocument();
        provider.reset(new WordProvider(services, std::move(word), LangID));
    });
    return provider;
}

WordProvider::~WordProvider() {
    // The user may have quit Word: then there is nothing to close.
    try {
        m_word->closeDocument();
        m_word->quit();
    } catch (const Failure &) {
    }
}

std::optional<CSpellingErrors> WordProvider::check(const QString &text) {
    m_word->setContentText(text);
    if (m_langID != -1)
        m_word->setContentLanguage(m_langID);
    CSpellingErrors errors;
    for (const WordRange &range : m_word->spellingErrors()) {
        const CSpellingError &error =
            errors.Add(range.text, range.start, range.end, spellingErrorType::notInDictionary);
        for (const QString &suggestion : m_word->suggestions(range))
            error.SpellingSuggestions().Add({}, suggestion, {});
    }
    return errors;
}

void WordProvider::AddToCustomDic(const QString &word) {
    const WordCustomDictionary dictionary = m_word->activeCustomDictionary();
    AddWordToDict(m_services.boxes, dictionary.path + dictionary.separator + dictionary.name, word);
}

} // namespace tolvo
