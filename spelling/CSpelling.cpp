// SPDX-License-Identifier: MIT
#include "spelling/CSpelling.h"

#include "platform/report_error.h"
#include "spelling/after_the_deadline.h"
#include "spelling/ginger.h"
#include "spelling/locales.h"
#include "spelling/word_provider.h"

namespace tolvo {

namespace {

constexpr int britishEnglish = 2057;

} // namespace

CSpelling::CSpelling(const SpellingServices &services, const cTextMethods &textMethods)
    : m_services(services), m_textMethods(textMethods) {
}

CSpelling::~CSpelling() = default;

void CSpelling::init(int providerType, int &LangID, QString &localeName) {
    m_providerType = providerType;
    if (m_providerType == providerType::word) {
        if (LangID == 0)
            LangID = britishEnglish;
        m_provider = WordProvider::instantiateWord(m_services, LangID);
        if (m_provider)
            return;
        m_providerType = providerType::hunspell;
        localeName = langFromID(LangID);
    } else if (localeName.isEmpty() && m_providerType > providerType::word &&
               m_providerType <= providerType::ginger) {
        localeName = QStringLiteral("en-gb");
    }
    switch (m_providerType) {
    case providerType::hunspell:
        initLocal(localeName);
        m_provider = std::make_unique<HunspellProvider>(m_services, *m_dictionary);
        break;
    case providerType::afterTheDeadline:
        initLocal(localeName);
        m_provider = std::make_unique<AfterTheDeadline>(m_services, m_textMethods, *m_dictionary);
        break;
    case providerType::ginger:
        m_provider = std::make_unique<GingerProvider>(m_services, localeName);
        break;
    default:
        ReportError(m_services.boxes, QStringLiteral("CSpelling"), QStringLiteral("init"),
                    QStringLiteral("Unrecognised spelling provider"), failureNumber::unknownSpellingProvider);
    }
}

void CSpelling::initLocal(QString &localeName) {
    m_dictionary = std::make_unique<LocalDictionary>();
    m_dictionary->initHunspell(m_services, localeName);
    m_dictionary->skip(skippedWords(m_services.store, m_textMethods));
}

QString CSpelling::langFromID(int LangID) const {
    return Locales(Locales::pathIn(m_services.dataFolder)).localeOf(LangID);
}

bool CSpelling::Spell(const QString &text) {
    if (!m_provider)
        return false;
    std::optional<CSpellingErrors> errors = m_provider->check(text);
    if (!errors)
        return false;
    m_errors = std::move(*errors);
    return m_errors.Count() >= 1;
}

bool CSpelling::Spell(const QString &text, bool grammar) {
    m_grammar = grammar;
    return Spell(text);
}

void CSpelling::AddToCustomDic(const QString &word) {
    if (m_provider)
        m_provider->AddToCustomDic(word);
}

void CSpelling::addForRun(const QString &word) {
    if (m_dictionary)
        m_dictionary->Add(word);
}

std::shared_ptr<CSpellingSuggestions> CSpelling::hunspellSuggest(const QString &word) {
    return m_dictionary ? m_dictionary->hunspellSuggest(word) : std::make_shared<CSpellingSuggestions>();
}

} // namespace tolvo
