// SPDX-License-Identifier: MIT
#include "preferences/settings_table.h"

#include "base/application.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "preferences/settings_store.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr char16_t firstListKey = u'a';

constexpr SettingsRow rows[] = {
    {u"Preferences", u"Wordwrap", u"0"},             // 1: the text area wraps lines
    {u"Preferences", u"Show Tips at Startup", u"1"}, // check box
    {u"Preferences", u"FontUseProp", u"1"},          // 1: proportional, 0: fixed font
    {u"Preferences", u"Prop_FontName", u""},         // the fonts are read with GetPreference; the fallback of
    {u"Preferences", u"Prop_FontBold", u""},         // the proportional one is the text area's own font
    {u"Preferences", u"Prop_FontItalic", u""},
    {u"Preferences", u"Prop_FontSize", u""},
    {u"Preferences", u"Fixed_FontName", u"Courier New"},
    {u"Preferences", u"Fixed_FontBold", u"False"},
    {u"Preferences", u"Fixed_FontItalic", u"False"},
    {u"Preferences", u"Fixed_FontSize", u"10"},
    {u"Preferences", u"Sounds", u"1"},
    {u"Preferences", u"CheckUpdates", u"1"}, // shown and saved; the weekly check asks AllowStats alone
    {u"Preferences", u"AllowStats", u"1"},
    {u"Preferences", u"TLD_Full", u"False"},
    {u"Preferences\\UserFileExtensions", u"", u""}, // list

    {u"Spelling", u"Provider", u"1"},
    {u"Spelling", u"UseWordDialog", u"True"},
    {u"Spelling", u"DictionaryList", u"|<Default>|-1"},
    {u"Spelling", u"QuickList", u"-1"},
    {u"Spelling", u"LangID", u"-1"},
    {u"Spelling", u"HunLangList", u"English (GB)|en-gb"},
    {u"Spelling", u"HunQuickList", u"<none>"},
    {u"Spelling", u"HunLocale", u"en-gb"},

    {u"Search", u"WholeWords", u"0"},
    {u"Search", u"MatchCase", u"0"},
    {u"Search", u"SmartReplace", u"1"},
    {u"Search", u"AllowSpecial", u"0"},
    {u"Search", u"Direction", u"Up"}, // "Up", "Down", "Start"
    {u"Search", u"More", u"False"},
    {u"Search", u"Anchor", u"4"},
    {u"Search", u"DecimalSep", u"."},
    {u"Search", u"GroupingSep", u","},
    {u"Search", u"Tab", u"1"},
    {u"Search\\SearchMRU", u"", u""},  // list
    {u"Search\\ReplaceMRU", u"", u""}, // list

    {u"PowerButtons\\Button n", u"Name", u"<Enter a name>"}, // n counts from 1
    {u"PowerButtons\\Button n", u"FontName", u""},
    {u"PowerButtons\\Button n", u"FontSize", u"16"},
    {u"PowerButtons\\Button n", u"Bold", u"False"},
    {u"PowerButtons\\Button n", u"Italic", u"False"},
    {u"PowerButtons\\Button n", u"Text", u""},
    {u"PowerButtons\\Button n", u"X", u"0"},
    {u"PowerButtons\\Button n", u"Y", u"0"},
    {u"PowerButtons\\Button n\\m", u"Token", u""}, // m-th Action
    {u"PowerButtons\\Button n\\m", u"Details", u""},
    {u"PowerButtons\\Button n\\m", u"DlgOption", u""},

    {u"Advisor", u"LastTip", u"0"}, // number of the tip that was shown last, from 1

    // Statistics. The keys of the last four sections are the tools' tokens; all count from 0.
    {u"Usage", u"StartDate", u"", true},
    {u"Usage", u"Count", u"0", true}, // starts of the program
    {u"Usage", u"", u"0", true},      // since StartDate
    {u"TotUsage", u"", u"0", true},   // never reset
    {u"PBUsage", u"", u"0", true},    // from PowerButtons, since StartDate
    {u"TotPBUsage", u"", u"0", true}, // from PowerButtons, never reset
};

} // namespace

std::span<const SettingsRow> settingsTable() {
    return rows;
}

QString settingsDefault(QStringView section, QStringView key) {
    for (const SettingsRow &row : rows) {
        if (section == QStringView(row.section) && key == QStringView(row.key))
            return QString::fromUtf16(row.defaultValue);
    }
    throw Failure(failureNumber::invalidArgument,
                  QStringLiteral("There is no setting '%1' in '%2'").arg(key, section));
}

QString readSetting(const SettingsStore &store, QStringView section, QStringView key) {
    return store.GetSetting(applicationTitle(), section.toString(), key.toString(),
                            settingsDefault(section, key));
}

bool readFlag(const SettingsStore &store, QStringView section, QStringView key) {
    return saysYes(readSetting(store, section, key));
}

void writeSetting(SettingsStore &store, QStringView section, QStringView key, const QString &value) {
    store.SaveSetting(applicationTitle(), section.toString(), key.toString(), value);
}

QString GetPreference(const SettingsStore &store, const QString &key, const QString &fallback) {
    const QString value = store.GetSetting(applicationTitle(), QStringLiteral("Preferences"), key, QString());
    return value.isEmpty() ? fallback : value;
}

QStringList readList(const SettingsStore &store, const QString &section) {
    auto pairs = store.GetAllSettings(applicationTitle(), section).value_or(QList<SettingsStore::Pair>());
    pairs.removeIf([](const SettingsStore::Pair &pair) {
        return pair.first.size() != 1 || pair.first.front().unicode() < firstListKey;
    });
    std::sort(pairs.begin(), pairs.end());
    QStringList entries;
    for (const SettingsStore::Pair &pair : pairs)
        entries += pair.second;
    return entries;
}

void writeList(SettingsStore &store, const QString &section, const QStringList &entries) {
    SettingsStore::Transaction transaction(store);
    store.DeleteSetting(applicationTitle(), section);
    char16_t key = firstListKey;
    for (const QString &entry : entries)
        store.SaveSetting(applicationTitle(), section, QString(QChar(key++)), entry);
    transaction.commit();
}

} // namespace tolvo
