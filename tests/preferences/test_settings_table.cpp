// SPDX-License-Identifier: MIT
#include "preferences/settings_store.h"
#include "preferences/settings_table.h"
#include "tests/support/failures.h"

#include <QSet>

namespace tolvo {
namespace {

TEST(SettingsTable, NamesEachSettingOnce) {
    QSet<QString> seen;
    for (const SettingsRow &row : settingsTable()) {
        const QString name = QString::fromUtf16(row.section) + u'|' + QString::fromUtf16(row.key);
        EXPECT_FALSE(seen.contains(name.toCaseFolded())) << name.toStdString();
        seen.insert(name.toCaseFolded());
    }
    expectFailure(failureNumber::invalidArgument, [] { (void)settingsDefault(u"Preferences", u"Wordrwap"); });
}

TEST(SettingsTable, EmptyFontKeyCountsAsAbsent) {
    SettingsStore store(u":memory:"_qs);
    const QString key = u"Fixed_FontName"_qs;
    EXPECT_EQ(GetPreference(store, key, u"fallback"_qs), u"fallback"_qs);
    writeSetting(store, u"Preferences", key, QString());
    EXPECT_EQ(GetPreference(store, key, u"fallback"_qs), u"fallback"_qs);
    writeSetting(store, u"Preferences", key, u"Mono"_qs);
    EXPECT_EQ(GetPreference(store, key, u"fallback"_qs), u"Mono"_qs);
}

TEST(SettingsTable, PlacesInListsComeFromTheKeys) {
    SettingsStore store(u":memory:"_qs);
    const QString section = u"Search\\SearchMRU"_qs;
    EXPECT_EQ(readList(store, section), QStringList());
    for (const auto &key : {u"b"_qs, u"a"_qs, u"{"_qs, u"other"_qs, u"1"_qs})
        store.SaveSetting(u"Tolvo"_qs, section, key, key);
    EXPECT_EQ(readList(store, section), (QStringList{u"a"_qs, u"b"_qs, u"{"_qs}));

    QStringList entries;
    for (int i = 0; i < 200; ++i) // past "z", and past the upper and lower letters of Latin-1
        entries += QString::number(i);
    writeList(store, section, entries);
    EXPECT_EQ(readList(store, section), entries);
    EXPECT_EQ(store.GetSetting(u"Tolvo"_qs, section, u"{"_qs), u"26"_qs) << "the character behind z";
    writeList(store, section, entries.first(2));
    EXPECT_EQ(readList(store, section), entries.first(2));
}

} // namespace
} // namespace tolvo
