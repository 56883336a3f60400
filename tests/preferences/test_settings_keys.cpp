// SPDX-License-Identifier: MIT
#include "preferences/options.h"
#include "preferences/settings_keys.h"
#include "tests/support/failures.h"
#include "tests/support/member_count.h"

#include <concepts>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

// Every key of `settingKeys`: the members of its structs, and of theirs.

template <class Struct>
auto membersOf(const Struct &all) {
    constexpr auto count = test::memberCount<Struct>();
    if constexpr (count == 1) {
        const auto &[a] = all;
        return std::tie(a);
    } else if constexpr (count == 2) {
        const auto &[a, b] = all;
        return std::tie(a, b);
    } else if constexpr (count == 3) {
        const auto &[a, b, c] = all;
        return std::tie(a, b, c);
    } else if constexpr (count == 4) {
        const auto &[a, b, c, d] = all;
        return std::tie(a, b, c, d);
    } else if constexpr (count == 6) {
        const auto &[a, b, c, d, e, f] = all;
        return std::tie(a, b, c, d, e, f);
    } else if constexpr (count == 7) {
        const auto &[a, b, c, d, e, f, g] = all;
        return std::tie(a, b, c, d, e, f, g);
    } else if constexpr (count == 8) {
        const auto &[a, b, c, d, e, f, g, h] = all;
        return std::tie(a, b, c, d, e, f, g, h);
    } else if constexpr (count == 10) {
        const auto &[a, b, c, d, e, f, g, h, i, j] = all;
        return std::tie(a, b, c, d, e, f, g, h, i, j);
    } else if constexpr (count == 11) {
        const auto &[a, b, c, d, e, f, g, h, i, j, k] = all;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k);
    } else {
        static_assert(count == 12, "a struct of another size needs a line of its own");
        const auto &[a, b, c, d, e, f, g, h, i, j, k, l] = all;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l);
    }
}

template <class Key>
concept IsSetting = requires(const Key &key) {
    key.defaultText();
};
template <class Key>
concept IsSection = std::same_as<Key, SettingList> || std::same_as<Key, CounterSection>;

template <class Visit>
void forEachKey(const auto &keys, Visit visit) {
    using Keys = std::remove_cvref_t<decltype(keys)>;
    if constexpr (IsSetting<Keys> || IsSection<Keys>)
        visit(keys);
    else
        std::apply([&](const auto &...member) { (forEachKey(member, visit), ...); }, membersOf(keys));
}

QString pathOf(const Section &section) {
    return section.path();
}
QString pathOf(ButtonSection section) {
    return section.path(1);
}
QString pathOf(ActionSection section) {
    return section.path(1, u"1"_s);
}
QString pathOf(ScreenSection section) {
    return section.path(u"800x600@1"_s);
}

/// Calls with what follows the key where it is read: nothing, the numbers of a PowerButton and an Action, or
/// a screen.
template <class Form, class Place>
void withPlace(const Setting<Form, Place> &, auto call) {
    if constexpr (std::is_same_v<Place, Section>)
        call();
    else if constexpr (std::is_same_v<Place, ButtonSection>)
        call(1);
    else if constexpr (std::is_same_v<Place, ScreenSection>)
        call(u"800x600@1"_s);
    else
        call(1, u"1"_s);
}

TEST(SettingsKeys, HaveTheirPlacesAndDefaults) {
    QStringList rows;
    forEachKey(settingKeys, [&]<class Key>(const Key &key) {
        QString row = key.section.tree == SettingsTree::Statistics ? u"Stats "_s : QString();
        if constexpr (IsSetting<Key>)
            row += pathOf(key.section) + u'|' + key.name.toString() + u'=' + key.defaultText();
        else
            row += pathOf(key.section) + u'|';
        rows += row;
    });
    rows.sort();
    const QStringList expected = {
        u"Advisor|LastTip=0"_s,
        u"CopyMatches|Form="_s,
        u"CopyMatches|InPlace=0"_s,
        u"Finder|LastUsed="_s,
        u"PowerButtons\\Button 1\\1|Details="_s,
        u"PowerButtons\\Button 1\\1|DlgOption="_s,
        u"PowerButtons\\Button 1\\1|Token="_s,
        u"PowerButtons\\Button 1|Bold=False"_s,
        u"PowerButtons\\Button 1|FontName="_s,
        u"PowerButtons\\Button 1|FontSize=16"_s,
        u"PowerButtons\\Button 1|Italic=False"_s,
        u"PowerButtons\\Button 1|Name=<Enter a name>"_s,
        u"PowerButtons\\Button 1|Text="_s,
        u"PowerButtons\\Button 1|X=0"_s,
        u"PowerButtons\\Button 1|Y=0"_s,
        u"Preferences\\UserFileExtensions|"_s,
        u"Preferences|AllowStats=1"_s,
        u"Preferences|CheckUpdates=1"_s,
        u"Preferences|Fixed_FontBold=False"_s,
        u"Preferences|Fixed_FontItalic=False"_s,
        u"Preferences|Fixed_FontName=Courier New"_s,
        u"Preferences|Fixed_FontSize=10"_s,
        u"Preferences|FontUseProp=1"_s,
        u"Preferences|Prop_FontBold="_s,
        u"Preferences|Prop_FontItalic="_s,
        u"Preferences|Prop_FontName="_s,
        u"Preferences|Prop_FontSize="_s,
        u"Preferences|Show Tips at Startup=1"_s,
        u"Preferences|Sounds=1"_s,
        u"Preferences|TLD_Full=False"_s,
        u"Preferences|Wordwrap=0"_s,
        u"Search\\ReplaceMRU|"_s,
        u"Search\\SearchMRU|"_s,
        u"Search|AllowSpecial=0"_s,
        u"Search|Anchor=4"_s,
        u"Search|DecimalSep=."_s,
        u"Search|Direction=Up"_s,
        u"Search|GroupingSep=,"_s,
        u"Search|MatchCase=0"_s,
        u"Search|More=False"_s,
        u"Search|SmartReplace=1"_s,
        u"Search|Tab=1"_s,
        u"Search|WholeWords=0"_s,
        u"Spelling|DictionaryList=|<Default>|-1"_s,
        u"Spelling|HunLangList=English (GB)|en-gb"_s,
        u"Spelling|HunLocale=en-gb"_s,
        u"Spelling|HunQuickList=<none>"_s,
        u"Spelling|LangID=-1"_s,
        u"Spelling|Provider=1"_s,
        u"Spelling|QuickList=-1"_s,
        u"Spelling|UseWordDialog=True"_s,
        u"Stats PBUsage|"_s,
        u"Stats TotPBUsage|"_s,
        u"Stats TotUsage|"_s,
        u"Stats Usage|"_s,
        u"Stats Usage|Count=0"_s,
        u"Stats Usage|StartDate="_s,
        u"View|Marks=0"_s,
        u"View|Zoom=100"_s,
        u"Windows\\800x600@1|Main="_s,
        u"Windows\\800x600@1|PanelWidth=0"_s,
        u"Windows\\800x600@1|Search="_s,
        u"Windows\\800x600@1|Sizes="_s,
    };
    EXPECT_EQ(rows, expected);
}

TEST(SettingsKeys, KeepTheirDefaultInTheirWrittenForm) {
    SettingsStore store(u":memory:"_s);
    forEachKey(settingKeys, [&]<class Key>(const Key &key) {
        if constexpr (IsSetting<Key>) {
            withPlace(key, [&](const auto &...where) {
                if (!key.defaultValue)
                    return;
                EXPECT_EQ(get(store, key, where...), key.otherwise()) << key.name.toUtf8().data();
                set(store, key, key.otherwise(), where...);
                EXPECT_EQ(textOf(store, key, where...), key.defaultText()) << key.name.toUtf8().data();
                if constexpr (std::same_as<typename Key::Value, bool>) {
                    set(store, key, !key.otherwise(), where...);
                    EXPECT_NE(get(store, key, where...), key.otherwise()) << key.name.toUtf8().data();
                }
            });
        }
    });
    const auto text = [&](const char16_t *section, const char16_t *key) {
        return store.GetSetting(u"Tolvo"_s, QString::fromUtf16(section), QString::fromUtf16(key));
    };
    EXPECT_EQ(text(u"Preferences", u"Show Tips at Startup"), u"0");
    EXPECT_EQ(text(u"Preferences", u"TLD_Full"), u"True");
    EXPECT_EQ(text(u"PowerButtons\\Button 1", u"FontSize"), u"16");
}

TEST(SettingsKeys, ReadFlagsByTheirForm) {
    const struct {
        const char16_t *text;
        bool check, equalsOne, comparedDigit, word, comparedWord;
    } rows[] = {
        {u"1", true, true, true, true, false},         {u"0", false, false, false, false, false},
        {u"True", true, false, false, true, true},     {u"False", false, false, false, false, false},
        {u"true", true, false, false, true, false},    {u"2", true, false, false, true, false},
        {u"1.0", true, true, false, true, false},      {u"", false, false, false, false, false},
        {u"maybe", false, false, false, false, false},
    };
    for (const auto &row : rows) {
        const QString text = QString::fromUtf16(row.text);
        SCOPED_TRACE(text.toStdString());
        EXPECT_EQ(forms::Check::read(text), row.check);
        EXPECT_EQ(forms::EqualsOne::read(text), row.equalsOne);
        EXPECT_EQ(forms::ComparedDigit::read(text), row.comparedDigit);
        EXPECT_EQ(forms::Word::read(text), row.word);
        EXPECT_EQ(forms::ComparedWord::read(text), row.comparedWord);
    }
}

TEST(SettingsKeys, WhatCantBeReadFailsOrGivesTheDefault) {
    SettingsStore store(u":memory:"_s);
    const auto &provider = settingKeys.spelling.provider;
    store.SaveSetting(u"Tolvo"_s, u"Spelling"_s, u"Provider"_s, u"none"_s);
    expectFailure(failureNumber::typeMismatch, [&] { (void)get(store, provider); });
    EXPECT_EQ(getOrDefault(store, provider), 1);
    expectFailure(failureNumber::typeMismatch, [&] { (void)get(store, settingKeys.statistics.startDate); });
    using Anchor = forms::Bounded<0, 4, 4>;
    EXPECT_EQ((QList{Anchor::read(u"3.9"_s), Anchor::read(u"5"_s), Anchor::read(u"-1"_s)}), (QList{3, 4, 4}));
    using Mode = forms::Bounded<1, 3, 1>;
    EXPECT_EQ((QList{Mode::read(u"3.9"_s), Mode::read(u"0.5"_s), Mode::read(u"two"_s)}), (QList{3, 1, 1}));
}

TEST(SettingsKeys, OneReaderHasADefaultOfItsOwn) {
    SettingsStore store(u":memory:"_s);
    EXPECT_EQ(get(store, providerForSpellingDialog), 0);
    EXPECT_EQ(get(store, settingKeys.spelling.provider), 1);
    set(store, settingKeys.spelling.provider, 3);
    EXPECT_EQ(get(store, providerForSpellingDialog), 3);
}

TEST(SettingsKeys, AnEmptyFontKeyCountsAsAbsent) {
    SettingsStore store(u":memory:"_s);
    const Font own{u"Own"_s, 12, true, false};
    EXPECT_EQ(loadOptions(store, own).fonts, (std::array{own, Font{u"Courier New"_s, 10}}));
    const auto put = [&](const char *key, const QString &text) {
        store.SaveSetting(u"Tolvo"_s, u"Preferences"_s, QLatin1StringView(key), text);
    };
    for (const char *key : {"Prop_FontName", "Prop_FontBold", "Fixed_FontName", "Fixed_FontSize"})
        put(key, {});
    EXPECT_EQ(loadOptions(store, own).fonts, (std::array{own, Font{u"Courier New"_s, 10}}));
    put("Prop_FontName", u"Mono"_s);
    put("Prop_FontBold", u"False"_s);
    put("Prop_FontItalic", u"maybe"_s);
    put("Prop_FontSize", u"9.5 points"_s);
    put("Fixed_FontSize", u"large"_s);
    EXPECT_EQ(loadOptions(store, own).fonts, (std::array{Font{u"Mono"_s, 9.5}, Font{u"Courier New"_s, 10}}));
}

TEST(SettingsKeys, PlacesInListsComeFromTheKeys) {
    SettingsStore store(u":memory:"_s);
    const SettingList &list = settingKeys.search.recentFinds;
    const QString section = list.section.path();
    EXPECT_EQ(get(store, list), QStringList());
    for (const auto &key : {u"b"_s, u"a"_s, u"{"_s, u"other"_s, u"1"_s})
        store.SaveSetting(u"Tolvo"_s, section, key, key);
    EXPECT_EQ(get(store, list), (QStringList{u"a"_s, u"b"_s, u"{"_s}));

    QStringList entries;
    for (int i = 0; i < 200; ++i) // past "z", and past the upper and lower letters of Latin-1
        entries += QString::number(i);
    set(store, list, entries);
    EXPECT_EQ(get(store, list), entries);
    EXPECT_EQ(store.GetSetting(u"Tolvo"_s, section, u"{"_s), u"26"_s) << "the character after z";
    set(store, list, entries.first(2));
    EXPECT_EQ(get(store, list), entries.first(2));
}

} // namespace
} // namespace tolvo
