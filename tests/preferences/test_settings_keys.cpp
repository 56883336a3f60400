// SPDX-License-Identifier: MIT
#include "preferences/options.h"
#include "preferences/settings_keys.h"
#include "tests/support/failures.h"
#include "tests/support/member_count.h"

#include <QFile>
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
    } else if constexpr (count == 5) {
        const auto &[a, b, c, d, e] = all;
        return std::tie(a, b, c, d, e);
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
    } else if constexpr (count == 12) {
        const auto &[a, b, c, d, e, f, g, h, i, j, k, l] = all;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l);
    } else if constexpr (count == 13) {
        const auto &[a, b, c, d, e, f, g, h, i, j, k, l, m] = all;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l, m);
    } else {
        static_assert(count == 14, "a struct of another size needs a line of its own");
        const auto &[a, b, c, d, e, f, g, h, i, j, k, l, m, n] = all;
        return std::tie(a, b, c, d, e, f, g, h, i, j, k, l, m, n);
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
    QFile file(qEnvironmentVariable("TOLVO_SOURCE") + u"/tests/preferences/settings_keys.txt"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList expected = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    expected.removeIf([](const QString &line) { return line.startsWith(u'#'); });
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
