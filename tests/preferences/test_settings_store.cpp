// SPDX-License-Identifier: MIT
// What the store promises while its file is well.
#include "preferences/settings_store.h"
#include "tests/support/failures.h"

#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString app = u"Tolvo"_s;
const QString stats = u"Tolvo-Stats"_s;

struct Store : testing::Test {
    SettingsStore store{u":memory:"_s};
};

TEST_F(Store, DefaultsAreTexts) {
    EXPECT_EQ(store.GetSetting(app, u"S"_s, u"k"_s), QString());
    EXPECT_EQ(store.GetSetting(app, u"S"_s, u"k"_s, u"text"_s), u"text"_s);
    EXPECT_EQ(store.GetSetting(app, u"S"_s, u"k"_s, -12), u"-12"_s);
    EXPECT_EQ(store.GetSetting(app, u"S"_s, u"k"_s, true), u"True"_s);
    store.SaveSetting(app, u"S"_s, u"k"_s, QString());
    EXPECT_EQ(store.GetSetting(app, u"S"_s, u"k"_s, u"text"_s), QString()) << "empty is not absent";
}

TEST_F(Store, NamesCompareWithoutCaseAndKeepTheirFirstSpelling) {
    store.SaveSetting(app, u"Search\\Größe ÅÄ"_s, u"Straße Ж"_s, u"1"_s);
    store.SaveSetting(u"TOLVO"_s, u"SEARCH\\GRÖßE åä"_s, u"sTRAßE ж"_s, u"2"_s);
    const auto all = store.GetAllSettings(app, u"search\\größe åä\\"_s);
    ASSERT_TRUE(all);
    EXPECT_EQ(*all, (QList<SettingsStore::Pair>{{u"Straße Ж"_s, u"2"_s}}));
    EXPECT_EQ(store.subsections(app, u"SEARCH"_s), QStringList{u"Größe ÅÄ"_s});
    EXPECT_EQ(store.GetAllSettings(stats, u"Search\\Größe ÅÄ"_s), std::nullopt) << "the trees are apart";
}

TEST_F(Store, OrderIsThatOfTheFirstWriting) {
    for (const QString &key : {u"c"_s, u"a"_s, u"b"_s, u"a"_s})
        store.SaveSetting(app, u"S\\"_s + key, key, key);
    EXPECT_EQ(store.subsections(app, u"S"_s), (QStringList{u"c"_s, u"a"_s, u"b"_s}));
    for (const QString &key : {u"z"_s, u"10"_s, u"2"_s, u"z"_s})
        store.SaveSetting(app, u"T"_s, key, u"v"_s);
    store.DeleteValue(app, u"T"_s, u"Z"_s);
    store.SaveSetting(app, u"T"_s, u"z"_s, u"v"_s);
    const auto all = store.GetAllSettings(app, u"T"_s);
    ASSERT_TRUE(all);
    QStringList keys;
    for (const auto &[key, value] : *all)
        keys += key;
    EXPECT_EQ(keys, (QStringList{u"10"_s, u"2"_s, u"z"_s}));
}

TEST_F(Store, NoListIsNotAnEmptyList) {
    EXPECT_EQ(store.GetAllSettings(app, u"S"_s), std::nullopt);
    store.SaveSetting(app, u"S\\below"_s, u"k"_s, u"v"_s);
    EXPECT_TRUE(store.sectionExists(app, u"S"_s));
    EXPECT_EQ(store.GetAllSettings(app, u"S"_s), std::nullopt) << "a section with subsections alone";
}

TEST_F(Store, DeletionTakesWhatLiesBelowAndNothingElse) {
    for (const QString &section : {u"S"_s, u"S\\a"_s, u"S\\a\\b"_s, u"S 2"_s, u"S-"_s, u"S]"_s})
        store.SaveSetting(app, section, u"k"_s, section);
    store.DeleteSetting(app, u"s"_s);
    store.DeleteSetting(app, u"not there"_s);
    EXPECT_FALSE(store.sectionExists(app, u"S\\a\\b"_s));
    EXPECT_EQ(store.subsections(app, {}), (QStringList{u"S 2"_s, u"S-"_s, u"S]"_s}));
    store.SaveSetting(app, u"S\\a"_s, u"new"_s, u"v"_s);
    EXPECT_EQ(store.GetAllSettings(app, u"S\\a"_s)->size(), 1);
    store.DeleteSetting(app, {});
    EXPECT_TRUE(store.subsections(app, {}).isEmpty());
}

TEST_F(Store, CountersAreDecimalTexts) {
    store.increment(stats, u"Usage"_s, u"ccUPP"_s);
    EXPECT_EQ(store.GetSetting(stats, u"Usage"_s, u"ccUPP"_s), u"1"_s);
    for (const auto &[before, after] :
         {std::pair{u"999"_s, u"1000"_s}, std::pair{u"2147483647"_s, u"2147483648"_s},
          std::pair{u" 7 "_s, u"8"_s}, std::pair{u"1.5"_s, u"2.5"_s}}) {
        store.SaveSetting(stats, u"Usage"_s, u"ccUPP"_s, before);
        store.increment(stats, u"Usage"_s, u"CCupp"_s);
        EXPECT_EQ(store.GetSetting(stats, u"Usage"_s, u"ccUPP"_s), after);
    }
    store.SaveSetting(stats, u"Usage"_s, u"ccUPP"_s, u"many"_s);
    expectFailure(failureNumber::typeMismatch, [&] { store.increment(stats, u"Usage"_s, u"ccUPP"_s); });
    EXPECT_EQ(store.GetSetting(stats, u"Usage"_s, u"ccUPP"_s), u"many"_s);
}

TEST(SettingsFile, GivesBackEveryText) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"new/folder/settings.sqlite"_s);
    const QStringList texts = {u"line\r\nline\n"_s,          QString(u'\0') + u"x"_s + QChar(u'\0'),
                               u"😀 \" \\ '; --"_s,           QString(QChar(0xD800)) + u"lone"_s,
                               QChar(0xFEFF) + u"mark"_s,    QChar(0xFFFE) + u"swapped"_s,
                               QString(100'000, QChar(u'ä'))};
    {
        SettingsStore store(path);
        for (const QString &text : texts)
            store.SaveSetting(app, u"S"_s, text.first(1), text);
    }
    SettingsStore store(path);
    for (const QString &text : texts)
        EXPECT_EQ(store.GetSetting(app, u"S"_s, text.first(1), u"absent"_s), text);
    EXPECT_EQ(store.takeTrouble(), QString());
}

TEST(SettingsFile, TransactionsAreAllOrNothingAndNest) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.sqlite"_s);
    SettingsStore store(path);
    SettingsStore other(path);
    store.SaveSetting(app, u"S"_s, u"a"_s, u"before"_s);
    {
        SettingsStore::Transaction outer(store);
        store.SaveSetting(app, u"S"_s, u"a"_s, u"outer"_s);
        {
            SettingsStore::Transaction dropped(store);
            store.DeleteSetting(app, u"S"_s);
        }
        {
            SettingsStore::Transaction kept(store);
            store.SaveSetting(app, u"New\\Level"_s, u"b"_s, u"inner"_s);
            kept.commit();
        }
        EXPECT_EQ(other.GetSetting(app, u"S"_s, u"a"_s), u"before"_s);
        outer.commit();
    }
    EXPECT_EQ(other.GetSetting(app, u"S"_s, u"a"_s), u"outer"_s);
    EXPECT_EQ(other.GetSetting(app, u"New\\Level"_s, u"b"_s), u"inner"_s);
    {
        SettingsStore::Transaction dropped(store);
        store.SaveSetting(app, u"S"_s, u"a"_s, u"lost"_s);
    }
    EXPECT_EQ(store.GetSetting(app, u"S"_s, u"a"_s), u"outer"_s);
}

} // namespace
} // namespace tolvo
