// SPDX-License-Identifier: MIT
// What the store promises while its file is well.
#include "preferences/settings_store.h"
#include "tests/support/failures.h"

#include <QTemporaryDir>

namespace tolvo {
namespace {

const QString app = u"Tolvo"_qs;
const QString stats = u"Tolvo-Stats"_qs;

struct Store : testing::Test {
    SettingsStore store{u":memory:"_qs};
};

TEST_F(Store, DefaultsAreTexts) {
    EXPECT_EQ(store.GetSetting(app, u"S"_qs, u"k"_qs), QString());
    EXPECT_EQ(store.GetSetting(app, u"S"_qs, u"k"_qs, u"text"_qs), u"text"_qs);
    EXPECT_EQ(store.GetSetting(app, u"S"_qs, u"k"_qs, -12), u"-12"_qs);
    EXPECT_EQ(store.GetSetting(app, u"S"_qs, u"k"_qs, true), u"True"_qs);
    store.SaveSetting(app, u"S"_qs, u"k"_qs, QString());
    EXPECT_EQ(store.GetSetting(app, u"S"_qs, u"k"_qs, u"text"_qs), QString()) << "empty is not absent";
}

TEST_F(Store, NamesCompareWithoutCaseAndKeepTheirFirstSpelling) {
    store.SaveSetting(app, u"Search\\Größe ÅÄ"_qs, u"Straße Ж"_qs, u"1"_qs);
    store.SaveSetting(u"TOLVO"_qs, u"SEARCH\\GRÖßE åä"_qs, u"sTRAßE ж"_qs, u"2"_qs);
    const auto all = store.GetAllSettings(app, u"search\\größe åä\\"_qs);
    ASSERT_TRUE(all);
    EXPECT_EQ(*all, (QList<SettingsStore::Pair>{{u"Straße Ж"_qs, u"2"_qs}}));
    EXPECT_EQ(store.subsections(app, u"SEARCH"_qs), QStringList{u"Größe ÅÄ"_qs});
    EXPECT_EQ(store.GetAllSettings(stats, u"Search\\Größe ÅÄ"_qs), std::nullopt) << "the trees are apart";
}

TEST_F(Store, OrderIsThatOfTheFirstWriting) {
    for (const QString &key : {u"c"_qs, u"a"_qs, u"b"_qs, u"a"_qs})
        store.SaveSetting(app, u"S\\"_qs + key, key, key);
    EXPECT_EQ(store.subsections(app, u"S"_qs), (QStringList{u"c"_qs, u"a"_qs, u"b"_qs}));
    for (const QString &key : {u"z"_qs, u"10"_qs, u"2"_qs, u"z"_qs})
        store.SaveSetting(app, u"T"_qs, key, u"v"_qs);
    store.DeleteValue(app, u"T"_qs, u"Z"_qs);
    store.SaveSetting(app, u"T"_qs, u"z"_qs, u"v"_qs);
    const auto all = store.GetAllSettings(app, u"T"_qs);
    ASSERT_TRUE(all);
    QStringList keys;
    for (const auto &[key, value] : *all)
        keys += key;
    EXPECT_EQ(keys, (QStringList{u"10"_qs, u"2"_qs, u"z"_qs}));
}

TEST_F(Store, NoListIsNotAnEmptyList) {
    EXPECT_EQ(store.GetAllSettings(app, u"S"_qs), std::nullopt);
    store.SaveSetting(app, u"S\\below"_qs, u"k"_qs, u"v"_qs);
    EXPECT_TRUE(store.sectionExists(app, u"S"_qs));
    EXPECT_EQ(store.GetAllSettings(app, u"S"_qs), std::nullopt) << "a section with subsections alone";
}

TEST_F(Store, DeletionTakesWhatLiesBelowAndNothingElse) {
    for (const QString &section : {u"S"_qs, u"S\\a"_qs, u"S\\a\\b"_qs, u"S 2"_qs, u"S-"_qs, u"S]"_qs})
        store.SaveSetting(app, section, u"k"_qs, section);
    store.DeleteSetting(app, u"s"_qs);
    store.DeleteSetting(app, u"not there"_qs);
    EXPECT_FALSE(store.sectionExists(app, u"S\\a\\b"_qs));
    EXPECT_EQ(store.subsections(app, {}), (QStringList{u"S 2"_qs, u"S-"_qs, u"S]"_qs}));
    store.SaveSetting(app, u"S\\a"_qs, u"new"_qs, u"v"_qs);
    EXPECT_EQ(store.GetAllSettings(app, u"S\\a"_qs)->size(), 1);
    store.DeleteSetting(app, {});
    EXPECT_TRUE(store.subsections(app, {}).isEmpty());
}

TEST_F(Store, CountersAreDecimalTexts) {
    store.increment(stats, u"Usage"_qs, u"ccUPP"_qs);
    EXPECT_EQ(store.GetSetting(stats, u"Usage"_qs, u"ccUPP"_qs), u"1"_qs);
    for (const auto &[before, after] :
         {std::pair{u"999"_qs, u"1000"_qs}, std::pair{u"2147483647"_qs, u"2147483648"_qs},
          std::pair{u" 7 "_qs, u"8"_qs}, std::pair{u"1.5"_qs, u"2.5"_qs}}) {
        store.SaveSetting(stats, u"Usage"_qs, u"ccUPP"_qs, before);
        store.increment(stats, u"Usage"_qs, u"CCupp"_qs);
        EXPECT_EQ(store.GetSetting(stats, u"Usage"_qs, u"ccUPP"_qs), after);
    }
    store.SaveSetting(stats, u"Usage"_qs, u"ccUPP"_qs, u"many"_qs);
    expectFailure(failureNumber::typeMismatch, [&] { store.increment(stats, u"Usage"_qs, u"ccUPP"_qs); });
    EXPECT_EQ(store.GetSetting(stats, u"Usage"_qs, u"ccUPP"_qs), u"many"_qs);
}

TEST(SettingsFile, GivesBackEveryText) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"new/folder/settings.sqlite"_qs);
    const QStringList texts = {u"line\r\nline\n"_qs,         QString(u'\0') + u"x"_qs + QChar(u'\0'),
                               u"😀 \" \\ '; --"_qs,          QString(QChar(0xD800)) + u"lone"_qs,
                               QChar(0xFEFF) + u"mark"_qs,   QChar(0xFFFE) + u"swapped"_qs,
                               QString(100'000, QChar(u'ä'))};
    {
        SettingsStore store(path);
        for (const QString &text : texts)
            store.SaveSetting(app, u"S"_qs, text.first(1), text);
    }
    SettingsStore store(path);
    for (const QString &text : texts)
        EXPECT_EQ(store.GetSetting(app, u"S"_qs, text.first(1), u"absent"_qs), text);
    EXPECT_EQ(store.takeTrouble(), QString());
}

TEST(SettingsFile, TransactionsAreAllOrNothingAndNest) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.sqlite"_qs);
    SettingsStore store(path);
    SettingsStore other(path);
    store.SaveSetting(app, u"S"_qs, u"a"_qs, u"before"_qs);
    {
        SettingsStore::Transaction outer(store);
        store.SaveSetting(app, u"S"_qs, u"a"_qs, u"outer"_qs);
        {
            SettingsStore::Transaction dropped(store);
            store.DeleteSetting(app, u"S"_qs);
        }
        {
            SettingsStore::Transaction kept(store);
            store.SaveSetting(app, u"New\\Level"_qs, u"b"_qs, u"inner"_qs);
            kept.commit();
        }
        EXPECT_EQ(other.GetSetting(app, u"S"_qs, u"a"_qs), u"before"_qs);
        outer.commit();
    }
    EXPECT_EQ(other.GetSetting(app, u"S"_qs, u"a"_qs), u"outer"_qs);
    EXPECT_EQ(other.GetSetting(app, u"New\\Level"_qs, u"b"_qs), u"inner"_qs);
    {
        SettingsStore::Transaction dropped(store);
        store.SaveSetting(app, u"S"_qs, u"a"_qs, u"lost"_qs);
    }
    EXPECT_EQ(store.GetSetting(app, u"S"_qs, u"a"_qs), u"outer"_qs);
}

} // namespace
} // namespace tolvo
