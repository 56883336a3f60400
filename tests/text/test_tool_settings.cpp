// SPDX-License-Identifier: MIT
#include "base/application.h"
#include "preferences/settings_store.h"
#include "tests/support/member_count.h"
#include "tests/support/other_settings.h"
#include "tests/text/engine.h"
#include "text/tool_settings.h"

#include <limits>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

const IndentSettings indent{IndentSettings::Choice::Text, 7, u"> "_s, {}};
const WordWrapSettings wrap{72, true, true, false};
const RemoveLinesSettings removeLines{true, false};
const BulletSettings bullet{u"=>"_s, false, 3};
const NumberListSettings numberList{ListStyle::Outline, 12, true, FollowChar::Brackets, false, 6};
const LineNumberSettings lineNumbers{10, 5, 2, false, true, false, true};

template <class Settings>
void comesBackFromString(const Settings &settings, const char *text) {
    const CParams params(QString::fromLatin1(text));
    EXPECT_EQ(settingsString(settings), QLatin1StringView(text));
    EXPECT_EQ(settingsFromAction(Settings(), params), ToolSettings(settings));
    ToolSettings applied = Settings();
    applySettings(applied, params);
    EXPECT_EQ(applied, ToolSettings(settings));
    applySettings(applied, CParams(u"Colour=1"_s));
    EXPECT_EQ(applied, ToolSettings(settings)) << "a key that isn't there changes a control";
}

TEST(ToolSettings, comeBackFromTheStoreAndFromTheirString) {
    forEachToolSettings([](const auto &defaults) {
        using Settings = std::remove_cvref_t<decltype(defaults)>;
        static_assert(memberCount<Settings>() == std::tuple_size_v<decltype(Settings::fields)>,
                      "a member is missing from the field list");
        const ToolSettings other = otherSettings<Settings>();
        SettingsStore store(u":memory:"_s);
        EXPECT_EQ(loadSettings(other, store), ToolSettings(defaults));
        saveSettings(store, other);
        EXPECT_EQ(loadSettings(defaults, store), other) << settingsString(other).toStdString();

        ToolSettings read = settingsFromAction(other, CParams(settingsString(defaults)));
        EXPECT_EQ(read, ToolSettings(defaults));
        applySettings(read, CParams(settingsString(other)));
        EXPECT_EQ(settingsString(read), settingsString(other));
    });
}

template <class Settings>
QString rowsOf(const Settings &defaults) {
    QStringList rows;
    const auto add = [&]<class Row>(const Row &field) {
        if constexpr (requires { field.list; })
            rows += field.list.section.path() + u'|';
        else
            rows += field.key(defaults).section.path() + u'|' + field.storeKey.toString() + u'=' +
                    field.key(defaults).defaultText();
    };
    std::apply([&](const auto &...field) { (add(field), ...); }, Settings::fields);
    return rows.join(u' ');
}

TEST(ToolSettings, haveTheirPlacesAndDefaults) {
    QStringList rows;
    forEachToolSettings([&](const auto &defaults) { rows += rowsOf(defaults); });
    EXPECT_EQ(rows,
              (QStringList{u"Indent|Spaces=4 Indent|Text= Indent|Option=Tab Indent\\TextMRU|"_s,
                           u"Wordwrap|Width=50 Wordwrap|Justify=0 Wordwrap|Hanging=0 Wordwrap|Tab=True"_s,
                           u"RemLines|Single=0 RemLines|Multiple=1"_s,
                           u"BulletList|Character=\u2022 BulletList|Tab=True BulletList|PadChars=2"_s,
                           u"NumList|Style=0 NumList|StartNumber=1 NumList|Renumber=0 NumList|FollowChar=0 "
                           "NumList|Tab=True NumList|PadChars=4"_s,
                           u"NumLines|Start=1 NumLines|Step=1 NumLines|Every=1 NumLines|IgnoreBlanks=True "
                           "NumLines|Renumber=True NumLines|Pad=True NumLines|RangeRight=False"_s,
                           u"SortLines|Order=1 SortLines|Language= SortLines|Column=0 SortLines|Head=0 "
                           "SortLines|Descending=0 SortLines|IgnoreCase=0 SortLines|Unique=0"_s,
                           u"Duplicates|KeepLast=0 Duplicates|IgnoreCase=0 Duplicates|IgnoreBlanks=0 "
                           "Duplicates|Neighbours=0 Duplicates|LeaveBlanks=0 Duplicates|Counts=0"_s,
                           u"AroundLines|Before={n}.  AroundLines|After= AroundLines|Start=1 "
                           "AroundLines|Step=1 AroundLines|Width=0 AroundLines|SkipBlanks=1"_s,
                           u"Separator|Join=0 Separator|Separator=,  Separator|Trim=1 "
                           "Separator|LeaveOutEmpty=0"_s,
                           u"EveryLine|Drop=0 EveryLine|Every=2 EveryLine|First=1"_s,
                           u"Columns|Columns=2,1 Columns|Drop=0"_s,
                           u"PatternLines|Drop=0 PatternLines|Pattern= PatternLines|Mode=1 "
                           "PatternLines|MatchCase=0 PatternLines|WholeWords=0 PatternLines|SpecialChars=0"_s,
                           u"PatternSort|Pattern= PatternSort|Mode=1 PatternSort|MatchCase=0 "
                           "PatternSort|WholeWords=0 PatternSort|SpecialChars=0 PatternSort|Order=1 "
                           "PatternSort|Descending=0"_s,
                           u"MatchCount|Pattern= MatchCount|Mode=1 MatchCount|MatchCase=0 "
                           "MatchCount|WholeWords=0 MatchCount|SpecialChars=0"_s,
                           u"Typography|Language=British Typography|Blanks=1"_s,
                           u"LanguageCase|Language=Any LanguageCase|Kind=Upper"_s,
                           u"ParagraphWrap|Width=72 ParagraphWrap|Fill=0"_s}));
}

TEST(ToolSettings, areWrittenAsSettingsStrings) {
    comesBackFromString(indent, "Spaces=7, Text=> , RadioButton=2");
    comesBackFromString(wrap, "Width=72, Justify=1, Hanging=1, Tab=False");
    comesBackFromString(removeLines, "Single=1, Multiple=0");
    comesBackFromString(bullet, "Bullet==>, Tab=False, Spaces=3");
    comesBackFromString(numberList, "Style=5, Start=12, Renumber=1, FollowChar=3, Tab=False, Spaces=6");
    comesBackFromString(SeparatorSettings{true, u", a, b,"_s, false, true},
                        "Join=1, Separator=,\\x20a,\\x20b,, Trim=0, LeaveOutEmpty=1");
    comesBackFromString(lineNumbers, "Start=10, Step=5, Every=2, IgnoreBlanks=True, Renumber=False, "
                                     "Pad=False, RangeRight=True");
}

TEST(ToolSettings, areReadLenientlyFromTheStore) {
    SettingsStore store(u":memory:"_s);
    store.SaveSetting(applicationTitle(), u"Indent"_s, u"Option"_s, u"else"_s);
    EXPECT_EQ(std::get<IndentSettings>(loadSettings(indent, store)).choice, IndentSettings::Choice::Text);
    store.SaveSetting(applicationTitle(), u"NumLines"_s, u"Pad"_s, u"1"_s);
    EXPECT_FALSE(std::get<LineNumberSettings>(loadSettings(lineNumbers, store)).pad)
        << "it is compared with \"True\"";
    store.SaveSetting(applicationTitle(), u"NumList"_s, u"PadChars"_s, u"wide"_s);
    store.SaveSetting(applicationTitle(), u"NumList"_s, u"StartNumber"_s, u"1e99"_s);
    store.SaveSetting(applicationTitle(), u"NumList"_s, u"Tab"_s, u"?"_s);
    EXPECT_EQ(loadSettings(numberList, store),
              ToolSettings(NumberListSettings{ListStyle::Decimal, std::numeric_limits<int>::max(), false,
                                              FollowChar::None, false, 1}))
        << "0 for what is not a number, and then the nearest that is allowed";
}

template <class Settings>
Settings fromAction(const char *text) {
    return std::get<Settings>(settingsFromAction(Settings(), CParams(QString::fromLatin1(text))));
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
              (NumberListSettings{ListStyle::Outline, 5000, false, FollowChar::None, false, 1}));
    EXPECT_EQ(fromAction<IndentSettings>("RadioButton=7, Spaces=1000000000, Text=").choice,
              IndentSettings::Choice::Text);
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
    ToolSettings settings = NumberListSettings{ListStyle::LowerRoman, 5, true, FollowChar::Stop, false, 7};
    applySettings(settings, CParams(u"Style=x, Start=, Renumber=False, Tab=true, Spaces=1e99"_s));
    EXPECT_EQ(settings,
              ToolSettings(NumberListSettings{ListStyle::Decimal, 0, false, FollowChar::Stop, false, 255}));
}

TEST(ToolSettings, makeThePrefix) {
    EXPECT_EQ(IndentSettings().prefix(), u"\t");
    EXPECT_EQ(indent.prefix(), u"> ");
    EXPECT_EQ(BulletSettings().prefix(), u"\u2022\t");
    EXPECT_EQ(bullet.prefix(), u"=>   ");
}

} // namespace
