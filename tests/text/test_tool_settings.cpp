// SPDX-License-Identifier: MIT
#include "preferences/settings_store.h"
#include "preferences/settings_table.h"
#include "tests/text/engine.h"
#include "text/tool_settings.h"

#include <limits>

using namespace tolvo;
using namespace Qt::StringLiterals;

namespace {

const IndentSettings indent{IndentSettings::WithText, 7, u"> "_s, {}};
const WordWrapSettings wrap{72, true, true, false};
const RemoveLinesSettings removeLines{true, false};
const BulletSettings bullet{u"=>"_s, false, 3};
const NumberListSettings numberList{5, 12, true, 3, false, 6};
const LineNumberSettings lineNumbers{10, 5, 2, false, true, false, true};

template <class Settings>
void comesBackFromStore(const Settings &settings) {
    SettingsStore store(u":memory:"_s);
    EXPECT_EQ(loadSettings<Settings>(store), Settings()) << "the defaults of store and struct differ";
    saveSettings(store, settings);
    EXPECT_EQ(loadSettings<Settings>(store), settings);
}

template <class Settings>
void comesBackFromString(const Settings &settings, const char *text) {
    const CParams params(QString::fromLatin1(text));
    EXPECT_EQ(settingsString(settings), QLatin1StringView(text));
    EXPECT_EQ(settingsFromAction<Settings>(params), settings);
    Settings applied;
    applySettings(applied, params);
    EXPECT_EQ(applied, settings);
    applySettings(applied, CParams(u"Colour=1"_s));
    EXPECT_EQ(applied, settings) << "a key that isn't there changes a control";
}

TEST(ToolSettings, comeBackFromTheStore) {
    std::apply([](const auto &...settings) { (comesBackFromStore(settings), ...); },
               std::tuple(indent, wrap, removeLines, bullet, numberList, lineNumbers));
    IndentSettings recent = indent;
    recent.recentTexts = {u"> "_s, u"# "_s};
    comesBackFromStore(recent);
}

TEST(ToolSettings, comeBackFromTheirString) {
    comesBackFromString(indent, "Spaces=7, Text=> , RadioButton=2");
    comesBackFromString(wrap, "Width=72, Justify=1, Hanging=1, Tab=False");
    comesBackFromString(removeLines, "Single=1, Multiple=0");
    comesBackFromString(bullet, "Bullet==>, Tab=False, Spaces=3");
    comesBackFromString(numberList, "Style=5, Start=12, Renumber=1, FollowChar=3, Tab=False, Spaces=6");
    comesBackFromString(lineNumbers, "Start=10, Step=5, Every=2, IgnoreBlanks=True, Renumber=False, "
                                     "Pad=False, RangeRight=True");
}

TEST(ToolSettings, areWrittenAsTheStoreHasThem) {
    SettingsStore store(u":memory:"_s);
    saveSettings(store, wrap);
    saveSettings(store, lineNumbers);
    EXPECT_EQ(readSetting(store, u"Wordwrap", u"Justify"), u"1");
    EXPECT_EQ(readSetting(store, u"Wordwrap", u"Tab"), u"False");
    EXPECT_EQ(readSetting(store, u"NumLines", u"IgnoreBlanks"), u"True");

    writeSetting(store, u"Indent", u"Option", u"else"_s);
    EXPECT_EQ(loadSettings<IndentSettings>(store).choice, IndentSettings::WithText);
    writeSetting(store, u"NumLines", u"Pad", u"1"_s);
    EXPECT_FALSE(loadSettings<LineNumberSettings>(store).pad) << "it is compared with \"True\"";
    writeSetting(store, u"NumList", u"PadChars", u"wide"_s);
    writeSetting(store, u"NumList", u"StartNumber", u"1e99"_s);
    writeSetting(store, u"NumList", u"Tab", u"?"_s);
    EXPECT_EQ(loadSettings<NumberListSettings>(store),
              (NumberListSettings{0, std::numeric_limits<int>::max(), false, 0, false, 1}))
        << "0 for what is no number, and then the nearest that is allowed";
}

template <class Settings>
Settings fromAction(const char *text) {
    return settingsFromAction<Settings>(CParams(QString::fromLatin1(text)));
}

TEST(ToolSettings, ofAnActionAreTakenStrictly) {
    // Only "0" clears the flag: the word "False" doesn't.
    const char *listing = "Start=1, Step=0, Every=0, Renumber=0, Pad=TRUE, RangeRight=-1, IgnoreBlanks=";
    EXPECT_FALSE(fromAction<LineNumberSettings>(QByteArray(listing) + "0").ignoreBlanks);
    const auto lineNumber = fromAction<LineNumberSettings>(QByteArray(listing) + "False");
    EXPECT_EQ(lineNumber, (LineNumberSettings{1, 1, 1, false, true, true, true}));

    // Only "1" sets these, and nothing there is no failure.
    EXPECT_EQ(fromAction<RemoveLinesSettings>("Single=True"), (RemoveLinesSettings{false, false}));

    // The nearest value allowed.
    EXPECT_EQ(fromAction<NumberListSettings>(
                  "Style=9, Start=5000, Renumber=False, FollowChar=-1, Tab=False, Spaces=-5"),
              (NumberListSettings{5, 5000, false, 0, false, 1}));
    EXPECT_EQ(fromAction<IndentSettings>("RadioButton=7, Spaces=1000000000, Text=").choice,
              IndentSettings::WithText);
    EXPECT_EQ(fromAction<IndentSettings>("RadioButton=1, Spaces=1000000000").prefix(), QString(255, u' '));

    using namespace failureNumber;
    for (const auto &[number, bad] : {std::pair(typeMismatch, ""),
                                      {overflow, "Width=1e999, Justify=0, Hanging=0, Tab=True"},
                                      {typeMismatch, "Width=60"},
                                      {overflow, "Width=3000000000, Justify=0, Hanging=0, Tab=True"},
                                      {typeMismatch, "Width=60, Justify=maybe, Hanging=0, Tab=True"}})
        expectFailure(number, [bad = bad] { (void)fromAction<WordWrapSettings>(bad); });
}

TEST(ToolSettings, ofADialogAreTakenLeniently) {
    NumberListSettings settings{3, 5, true, 1, false, 7};
    applySettings(settings, CParams(u"Style=x, Start=, Renumber=False, Tab=true, Spaces=1e99"_s));
    EXPECT_EQ(settings, (NumberListSettings{0, 0, false, 1, false, 255}));
}

TEST(ToolSettings, makeThePrefix) {
    EXPECT_EQ(IndentSettings().prefix(), u"\t");
    EXPECT_EQ(indent.prefix(), u"> ");
    EXPECT_EQ(BulletSettings().prefix(), u"\u2022\t");
    EXPECT_EQ(bullet.prefix(), u"=>   ");
}

} // namespace
