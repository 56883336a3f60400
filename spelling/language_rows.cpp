// SPDX-License-Identifier: MIT
#include "spelling/language_rows.h"

#include "preferences/settings_keys.h"
#include "spelling/found_languages.h"
#include "spelling/language_names.h"
#include "spelling/locales.h"
#include "spelling/spelling_provider.h"
#include "spelling/spelling_services.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr const SpellingKeys &keys = settingKeys.spelling;

QString noDictionary() {
    return QStringLiteral("No dictionary found");
}

int numberOf(const QString &locale, const Locales &locales) {
    // The number of no choice stands for the default as well.
    const bool isDefault = locale == keys.hunLocale.otherwise();
    return locales.idOf(locale, isDefault ? keys.langID.otherwise() : ownLanguageNumber(locale));
}

qsizetype placeOf(const QList<LanguageRow> &rows, const QString &locale) {
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (localeOfFile(rows[row].language.Locale) == localeOfFile(locale))
            return row;
    }
    return -1;
}

/// The entries of `HunLangList`, then the other languages found.
QList<LanguageRow> hunspellRows(const SpellingServices &services) {
    const Locales locales(Locales::pathIn(services.dataFolder));
    QList<LanguageRow> rows;
    for (const CSpellLanguage &language : LanguageList(services.store).hunspellList(locales))
        rows += LanguageRow{language, noDictionary(), {}};
    for (const FoundLanguage &found : foundLanguages(services)) {
        const int number = numberOf(found.locale, locales);
        const qsizetype listed = placeOf(rows, found.locale);
        if (listed < 0) {
            rows += {CSpellLanguage::Constructor_Hun(found.locale, found.locale, found.name, number),
                     found.place(), found.files};
            continue;
        }
        rows[listed].language.ID = number;
        rows[listed].place = found.place();
        rows[listed].files = found.files;
    }
    return rows;
}

} // namespace

QList<LanguageRow> languageRows(const SpellingServices &services, int providerType) {
    QList<LanguageRow> rows;
    if (providerType == providerType::word) {
        for (const CSpellLanguage &language : LanguageList(services.store).wordQuickLanguages())
            rows += LanguageRow{language, {}, {}};
        return rows;
    }
    QList<LanguageRow> all = hunspellRows(services);
    const QString quick = get(services.store, keys.hunQuickList);
    if (quick == keys.hunQuickList.otherwise())
        return all;
    for (const QString &locale : quick.split(u'|')) {
        if (const qsizetype place = placeOf(all, locale); place >= 0)
            rows += all[place];
    }
    return rows;
}

QList<HunspellRow> hunspellWindowRows(const SpellingServices &services) {
    QList<HunspellRow> rows;
    for (const HunspellLanguage &language : LanguageList(services.store).hunspellLanguages())
        rows += {language, noDictionary(), {}};
    for (const FoundLanguage &found : foundLanguages(services)) {
        const auto same = [&found](const HunspellRow &row) {
            return localeOfFile(row.language.locale) == found.locale;
        };
        auto row = std::find_if(rows.begin(), rows.end(), same);
        if (row == rows.end()) {
            rows += HunspellRow{{found.locale, found.name, territoryName(found.locale)}, {}, {}};
            row = rows.end() - 1;
        }
        row->place = found.place();
        if (found.source == DictionarySource::User)
            row->added = found.files;
    }
    return rows;
}

int ownLanguageNumber(const QString &locale) {
    // FNV-1a, 32 bits: http://www.isthe.com/chongo/tech/comp/fnv/
    std::uint32_t hash = 2166136261;
    for (const char byte : localeOfFile(locale).toUtf8())
        hash = (hash ^ static_cast<unsigned char>(byte)) * 16777619;
    constexpr int lowest = 1000;
    return -lowest - static_cast<int>(hash & 0x3FFFFFFF);
}

QString chosenLocale(const SpellingServices &services, int LangID) {
    if (LangID == keys.langID.otherwise())
        return {};
    const Locales locales(Locales::pathIn(services.dataFolder));
    QString named = locales.localeOf(LangID);
    if (!named.isEmpty() && findDictionary(named, services))
        return named;
    for (const FoundLanguage &found : foundLanguages(services)) {
        if (numberOf(found.locale, locales) == LangID)
            return found.locale;
    }
    return {};
}

QString languageInTitle(const SpellingServices &services, int LangID) {
    const LanguageList lists(services.store);
    QString ofWord = lists.langFromID(LangID);
    const int provider = lists.provider();
    const bool usesLocale = provider > providerType::word && provider <= providerType::ginger;
    if (!ofWord.isEmpty() || LangID == keys.langID.otherwise() || !usesLocale)
        return ofWord;
    const QString locale = chosenLocale(services, LangID);
    if (!locale.isEmpty())
        return locale == keys.hunLocale.otherwise() ? QString() : languageName(locale);
    const QString missing = Locales(Locales::pathIn(services.dataFolder)).localeOf(LangID);
    return languageName(keys.hunLocale.otherwise()) +
           (missing.isEmpty() ? QStringLiteral(", as the dictionary of your choice is gone")
                              : QStringLiteral(", as there is no dictionary for ") + languageName(missing));
}

int firstRow(const QList<LanguageRow> &rows, const SpellingServices &services, int LangID) {
    if (LangID == keys.langID.otherwise()) {
        qsizetype row = -1;
        if (!isSet(services.store, keys.hunLocale))
            row = placeOf(rows, services.desktopLocale);
        if (row < 0 || rows[row].files.dic.isEmpty())
            row = placeOf(rows, get(services.store, keys.hunLocale));
        if (row >= 0)
            return static_cast<int>(row);
    }
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (rows[row].language.ID == LangID)
            return static_cast<int>(row);
    }
    return -1;
}

} // namespace tolvo
