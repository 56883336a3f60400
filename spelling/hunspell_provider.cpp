// SPDX-License-Identifier: MIT
#include "spelling/hunspell_provider.h"

#include "platform/report_error.h"
#include "spelling/dictionaries.h"
#include "spelling/user_dictionaries.h"
#include "spelling/words.h"

namespace tolvo {

void LocalDictionary::initHunspell(const SpellingServices &services, const QString &locale) {
    m_engine = std::make_shared<HunspellEngine>();
    m_locale = locale;
    const auto files = findDictionary(locale, services);
    if (!files || !m_engine->init(files->aff, files->dic)) {
        ReportError(services.boxes, QStringLiteral("CSpelling"), QStringLiteral("init"),
                    QStringLiteral("Unable to initialise Hunspell provider"),
                    failureNumber::hunspellNotInitialised);
        return;
    }
    for (const QString &word : readUserDictionary(services, locale))
        m_engine->Add(word);
}

CSpellingErrors LocalDictionary::checkHunspell(const QString &text) {
    CSpellingErrors errors;
    qsizetype position = 1;
    while (position < text.size()) {
        const QStringView word = getNextWord(text, position, false);
        if (m_engine->Spell(word))
            continue;
        const QString wrong = word.toString();
        CSpellingError &error =
            errors.Add(wrong, position - word.size() - 1, position - 1, spellingErrorType::notInDictionary);
        error.setSpellingSuggestions(hunspellSuggest(wrong));
    }
    return errors;
}

std::shared_ptr<CSpellingSuggestions> LocalDictionary::hunspellSuggest(const QString &word) {
    const auto make = [engine = m_engine, word](CSpellingSuggestions &list) {
        const QString joined = engine->suggest(word);
        if (joined.isEmpty())
            return;
        int index = 0;
        for (const QString &suggestion : joined.split(u'|'))
            list.Add(QString::number(index++), suggestion, {});
    };
    return std::make_shared<CSpellingSuggestions>(make);
}

void HunspellProvider::AddToCustomDic(const QString &word) {
    addUserWord(m_services, m_dictionary.locale(), word);
}

} // namespace tolvo
