// SPDX-License-Identifier: MIT
// The list of Actions, the collection, and the store.
#include "base/application.h"
#include "powerbuttons/example_buttons.h"
#include "powerbuttons/icon_geometry.h"
#include "powerbuttons/step_words.h"
#include "tests/powerbuttons/world.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

class PowerButtons : public World {
  protected:
    void put(const QString &section, const char *key, const QString &value) {
        store.SaveSetting(applicationTitle(), "PowerButtons\\Button " + section, QLatin1StringView(key),
                          value);
    }
};

TEST_F(PowerButtons, addActionsAtAPosition) {
    using Place = std::optional<int>; // index, before, after
    const std::tuple<Place, Place, Place, const char *> cases[] = {
        {{}, {}, {}, "soALP soNUM soREV ccUPP"}, {2, {}, {}, "soALP ccUPP soREV"},
        {4, {}, {}, "soALP soNUM soREV ccUPP"},  {0, {}, {}, "soALP soNUM soREV ccUPP"},
        {{}, 1, {}, "ccUPP soALP soNUM soREV"},  {{}, 3, 1, "soALP soNUM ccUPP soREV"},
        {{}, {}, 1, "soALP ccUPP soNUM soREV"},  {2, {}, 3, "soALP soNUM soREV ccUPP"},
        {{}, 99, {}, "soALP soNUM soREV ccUPP"}, {{}, {}, -5, "ccUPP soALP soNUM soREV"},
    };
    for (const auto &[index, before, after, result] : cases) {
        CPowerButton button;
        for (const char *token : {"soALP", "soNUM", "soREV"})
            button.Add(action(token));
        button.Add(action("ccUPP"), index, before, after);
        EXPECT_EQ(actionsOf(button), QLatin1StringView(result));
    }
}

TEST_F(PowerButtons, comeBackFromTheStore) {
    CPowerButton button;
    button.Name = "Ünï & co, \u2709";
    setIcon(button, {"</>", {"Serif", 12.5, true, false}, -1.5, 3});
    for (int i = 0; i < 12; ++i) // more than nine: the numbers of the subsections don't sort as texts
        button.Add(action("foREM", QString("Single=%1, x").arg(i), static_cast<SettingsFrom>(i % 3)));
    methods.SavePBSettings(button, 8);
    const CPowerButton read = reread(8);
    EXPECT_EQ(read.Name, button.Name);
    EXPECT_EQ(iconOf(read), iconOf(button));
    EXPECT_EQ(actionsOf(read), actionsOf(button));
    EXPECT_EQ(read.Item(12)->DlgOption(), SettingsFrom::Current);
    EXPECT_EQ(read.Item(12)->Param("Single"), "11");

    button.Clear();
    button.Add(action("ccUPP"));
    methods.SavePBSettings(button, 8); // nothing of the longer one is left
    EXPECT_EQ(actionsOf(reread(8)), "ccUPP");

    CPowerButton nothing;
    EXPECT_FALSE(methods.ReadPBSettings(nothing, 1));
    EXPECT_FALSE(nothing.isDefined());
    EXPECT_EQ(nothing.IconFontSize, 16);
}

TEST_F(PowerButtons, areReadFromStoresWithGaps) {
    put("2", "FontSize", "0");
    put("2\\7", "Token", "foREM");
    put("2\\7", "Details", "Single=1, Single=2");
    put("2\\7", "DlgOption", "7");
    put("2\\3", "Other", "x"); // keeps what the one before had
    put("2\\x", "Token", "ccUPP");
    const CPowerButton read = reread(2);
    EXPECT_EQ(read.IconFontSize, 16);
    EXPECT_EQ(actionsOf(read), "foREM(Single=1, Single=2) foREM(Single=1, Single=2) "
                               "ccUPP(Single=1, Single=2)");
    EXPECT_EQ(read.Item(3)->DlgOption(), static_cast<SettingsFrom>(7));
    EXPECT_EQ(read.Item(1)->Param("Single"), "1");
}

TEST_F(PowerButtons, keepWhichStepsAreSwitchedOff) {
    CPowerButton button;
    button.IconFontSize = 16;
    for (const char *token : {"soALP", "foREM", "ccUPP"})
        button.Add(action(token));
    EXPECT_FALSE(allSwitchedOff(button));
    button.Item(2)->setSwitchedOff(true);
    methods.SavePBSettings(button, 3);
    const CPowerButton read = reread(3);
    EXPECT_EQ(read, button);
    EXPECT_TRUE(read.Item(2)->switchedOff());
    EXPECT_FALSE(read.Item(3)->switchedOff()); // unlike the other keys, it doesn't hold for those after it
    EXPECT_EQ(stepWords(read), "1. Sort A to Z, 2. Remove blank lines (off), 3. UPPER CASE");
    const auto pairs = store.GetAllSettings(applicationTitle(), "PowerButtons\\Button 3\\3");
    ASSERT_TRUE(pairs);
    EXPECT_EQ(pairs->size(), 3); // the key is there only if it says something
    EXPECT_EQ(methods.changedInStore(button, 3), nullptr);
    button.Item(2)->setSwitchedOff(false);
    EXPECT_NE(methods.changedInStore(button, 3), nullptr);
}

TEST_F(PowerButtons, keepThePlaceOfUnknownTools) {
    put("4", "Name", "Mine");
    put("4\\1", "Token", "zzOLD");
    put("4\\2", "Token", "ccUPP");
    boxes.expect("A tool with the token 'zzOLD' was found in PowerButton 4 'Mine'.\r\nThis tool does not "
                 "exist: it was probably deleted from Tools.dat.\r\nIt will be skipped");
    const CPowerButton read = reread(4);
    EXPECT_EQ(actionsOf(read), "toolNULL ccUPP");
    methods.SavePBSettings(read, 4);
    EXPECT_EQ(actionsOf(reread(4)), "toolNULL ccUPP");
}

TEST_F(PowerButtons, keepAllElseBesideValuesOfTheWrongKind) {
    CPowerButton whole;
    whole.Name = "Mine";
    setIcon(whole, {"ab", {"Serif", 12, true, true}, 3, 4});
    whole.Add(action("foREM", "Single=1", SettingsFrom::Custom));
    whole.Add(action("ccUPP"));
    const std::tuple<const char *, const char *, std::function<void(CPowerButton &)>> wrong[] = {
        {"5", "FontSize", [](CPowerButton &b) { b.IconFontSize = 16; }},
        {"5", "Bold", [](CPowerButton &b) { b.IconFontBold = false; }},
        {"5", "Y", [](CPowerButton &b) { b.IconY = 0; }},
        {"5\\1", "DlgOption", [](CPowerButton &b) { b.Item(1)->setDlgOption(SettingsFrom::Prompt); }},
    };
    for (const auto &[section, key, repair] : wrong) {
        methods.SavePBSettings(whole, 5);
        put(section, key, "8,25");
        boxes.expect("Sorry, ");
        const CPowerButton read = reread(5);
        for (const char *part :
             {"PowerButton 5 'Mine'", key, "'8,25'", "CPowerButtonMethods::ReadPBSettings", "13"})
            EXPECT_TRUE(boxes.last.text.contains(QLatin1StringView(part))) << boxes.last.text.toStdString();
        methods.SavePBSettings(whole, 5);
        CPowerButton expected = reread(5);
        repair(expected);
        EXPECT_EQ(read, expected) << key;
        methods.SavePBSettings(read, 5);
        EXPECT_EQ(reread(5), expected) << key;
    }
    put("5", "X", "left"); // all that is wrong with a button in one report
    put("5\\2", "DlgOption", "1e99");
    boxes.expect("Sorry, ");
    static_cast<void>(reread(5));
    EXPECT_TRUE(boxes.last.text.contains("left") && boxes.last.text.contains("DlgOption"));
}

TEST_F(PowerButtons, mayHaveEightThousandActions) {
    CPowerButton button;
    for (int i = 0; i < 8000; ++i)
        button.Add(action("ccUPP"), {}, 1);
    methods.SavePBSettings(button, 1);
    EXPECT_EQ(reread(1).Count(), 8000);
}

TEST_F(PowerButtons, haveReadyMadeExamples) {
    const auto examples = exampleButtons(tools);
    ASSERT_EQ(examples.size(), 3);
    for (const auto &example : examples) {
        for (int position = 1; position <= example->Count(); ++position) {
            const auto step = example->Item(position);
            EXPECT_EQ(step->Tool()->gotDialog(), !step->Details().isEmpty()); // they run without asking
        }
    }
}

TEST_F(PowerButtons, sayTheirStepsInWords) {
    CPowerButton button;
    EXPECT_EQ(stepWords(button), QString());
    for (const char *token : {"foTRA", "foIND"})
        button.Add(action(token));
    EXPECT_EQ(stepWords(button), "1. Trim line ends, 2. Indent");
    button.Add(std::make_shared<CAction>());
    EXPECT_TRUE(stepWords(button).endsWith(", 3. unknown tool"));
    while (button.Count() < 12)
        button.Add(action("ccUPP"));
    EXPECT_TRUE(stepWords(button).endsWith(", 8. UPPER CASE, and 4 more"));
}

TEST(IconText, isCutAsReadersCount) {
    EXPECT_EQ(firstCharacters("abcd", 3), "abc");
    EXPECT_EQ(firstCharacters(u"\U0001F600e\u0301xy"_s, 3), u"\U0001F600e\u0301x"_s);
    EXPECT_EQ(fontLabel({"Arial", 16, true, true}), "Arial Bold Italic (16pt)");
}

} // namespace
} // namespace tolvo
