// SPDX-License-Identifier: MIT
#include "spelling/hunspell_provider.h"

#include "platform/report_error.h"
#include "spelling/dictionaries.h"
#include "spelling/found_languages.h"
#include "spelling/user_dictionaries.h"

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
    const bool curlyToo = loadTypedTextOptions(services.store).curlyApostrophe;
    m_words = WordFinder(wordRulesOf(localeOfFile(locale), curlyToo), m_engine->wordCharacters(),
                         [engine = m_engine](const QString &text) { return engine->converted(text); });
    for (const QString &word : readUserDictionary(services, locale))
        m_engine->Add(word);
}

bool LocalDictionary::isGood(QStringView text, const FoundWord &word) {
    return m_engine->Spell(text.sliced(word.start, word.length)) ||
           m_engine->Spell(text.sliced(word.outerStart, word.outerLength)) ||
           m_skipped.skips(text, word.start, word.length);
}

CSpellingErrors LocalDictionary::checkHunspell(const QString &text) {
    CSpellingErrors errors;
    if (text.size() == 1)
        return errors;
    qsizetype end = 0;
    for (FoundWord word = m_words.next(text, 0); word.length > 0; word = m_words.next(text, end)) {
        end = word.start + word.length;
        if (isGood(text, word))
            continue;
        const QString wrong = text.mid(word.start, word.length);
        CSpellingError &error = errors.Add(wrong, word.start, end, spellingErrorType::notInDictionary);
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
