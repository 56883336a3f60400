// SPDX-License-Identifier: MIT
#include "spelling/languages.h"

#include "base/failure.h"
#include "preferences/settings_keys.h"
#include "spelling/locales.h"
#include "spelling/word_automation.h"

#include <memory>

namespace tolvo {

namespace {

constexpr const SpellingKeys &keys = settingKeys.spelling;

/// The fields of those entries of a list that have `fields` fields or more.
QList<QStringList> entries(const QString &list, qsizetype fields) {
    QList<QStringList> all;
    for (const QString &entry : list.split(u'#')) {
        const QStringList parts = entry.split(u'|');
        if (parts.size() >= fields)
            all += parts;
    }
    return all;
}

} // namespace

QList<CSpellLanguage> LanguageList::wordLanguages() const {
    QList<CSpellLanguage> languages;
    for (const QStringList &fields : entries(get(m_store, keys.dictionaryList), 3)) {
        bool isNumber = false;
        const int id = fields[2].toInt(&isNumber);
        if (isNumber)
            languages += CSpellLanguage::Constructor_Word(fields[1], fields[0], id);
    }
    return languages;
}

QString LanguageList::langFromID(int LangID) const {
    for (const CSpellLanguage &language : wordLanguages()) {
        if (language.ID == LangID)
            return language.Description;
    }
    return {};
}

QList<CSpellLanguage> LanguageList::wordQuickLanguages() const {
    const QList<CSpellLanguage> all = wordLanguages();
    QList<CSpellLanguage> quick;
    for (const QString &number : wordQuickList()) {
        for (const CSpellLanguage &language : all) {
            if (QString::number(language.ID) == number) {
                quick += language;
                break;
            }
        }
    }
    return quick;
}

QList<CSpellLanguage> LanguageList::hunspellList(const Locales &locales) const {
    QList<CSpellLanguage> all;
    for (const QStringList &fields : entries(get(m_store, keys.hunLangList), 2))
        all += CSpellLanguage::Constructor_Hun(fields[1], fields[1], fields[0], locales.idOf(fields[1], -1));
    return all;
}

QList<HunspellLanguage> LanguageList::hunspellLanguages() const {
    QList<HunspellLanguage> languages;
    for (const QStringList &fields : entries(get(m_store, hunLangListForWindow), 2))
        languages += HunspellLanguage{fields[0], fields[1], fields.value(2)};
    return languages;
}

QStringList LanguageList::wordQuickList() const {
    return get(m_store, keys.quickList).split(u'|', Qt::SkipEmptyParts);
}

void LanguageList::saveWordQuickList(const QStringList &numbers) {
    set(m_store, keys.quickList, numbers.join(u'|'));
}

void LanguageList::saveWordLanguages(const QString &list) {
    set(m_store, keys.dictionaryList, list);
}

bool LanguageList::useWordDialog() const {
    return get(m_store, keys.useWordDialog);
}

void LanguageList::saveUseWordDialog(bool use) {
    set(m_store, keys.useWordDialog, use);
}

int LanguageList::provider() const {
    return get(m_store, keys.provider);
}

int LanguageList::storedLangID() const {
    return getOrDefault(m_store, keys.langID);
}

void LanguageList::saveLangID(int LangID) {
    set(m_store, keys.langID, LangID);
}

QString readWordLanguages(WordAutomation &automation, const std::function<bool()> &cancelled) {
    QString list = QStringLiteral("MS Word Default|<Default>|-1");
    const std::unique_ptr<WordApplication> word = automation.create();
    // This Word is hidden and nobody else's: it must quit whatever happens.
    const auto quit = [](WordApplication *application) {
        try {
            application->quit();
        } catch (const Failure &) {
        }
    };
    const std::unique_ptr<WordApplication, decltype(quit)> atEnd(word.get(), quit);
    for (const WordLanguage &language : word->languages()) {
        if (cancelled())
            return {};
        list += u'#' + language.name + u'|' + language.localName + u'|' + QString::number(language.id);
    }
    return list;
}

} // namespace tolvo
