// SPDX-License-Identifier: MIT
// PowerButtons that are passed on: the text, and the way from one row of buttons to another.
#include "powerbuttons/button_sharing.h"
#include "powerbuttons/icon_geometry.h"
#include "powerbuttons/shared_steps.h"
#include "tests/powerbuttons/world.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

class ButtonFiles : public World {
  protected:
    std::shared_ptr<CPowerButton> define(int number, const QString &name,
                                         const QList<std::shared_ptr<CAction>> &steps) {
        auto button = std::make_shared<CPowerButton>();
        button->Name = name;
        for (const auto &step : steps)
            button->Add(step);
        buttons.Add(button, number);
        return button;
    }
    std::shared_ptr<CAction> runs(int number) {
        return action("pbPBT", QString("PowerButton=%1").arg(number), SettingsFrom::Custom);
    }
    QString troubleOf(const QString &text) { return readButtonFile(text, tools).trouble; }
    static QString file(const QString &rest) { return "Tolvo PowerButton 1\nname: x\n" + rest; }
};

TEST_F(ButtonFiles, areWrittenForReaders) {
    auto button = define(3, "Clean, mail",
                         {action("edSTR"), action("foREM", "Single=0, Multiple=1", SettingsFrom::Custom)});
    setIcon(*button, {u"✉"_s, {"Serif", 12.5, true, false}, -1.5, 3});
    EXPECT_EQ(buttonFileText(gatherButtons(buttons, 3)), uR"(Tolvo PowerButton 1

name: Clean, mail
icon: ✉
font: Serif
size: 12.5
bold: yes
x: -1.5
y: 3

step: edSTR # Clean up e-mail
step: foREM # Remove blank lines
settings: own
set: Single=0
set: Multiple=1
)"_s);
}

TEST_F(ButtonFiles, comeBackWhole) {
    const QString texts[] = {"Mode=1, Find=a, b, MatchCase=0", // as the settings string has it, cut or not
                             "",
                             ", ",
                             "a,",
                             " a ",
                             "\"a\"",
                             "Find=\\d+\t# x",
                             u"Text=\r\n\u2028\ufeff\0"_s,
                             u"Find="_s + QChar(0xD800),
                             u"\U0001F600 \u202Eabc"_s,
                             "step: ccUPP",
                             "\\u{41}",
                             "C:\\new"};
    for (const QString &text : texts) {
        auto off = action("ccUPP", {}, static_cast<SettingsFrom>(7));
        off->setSwitchedOff(true);
        const auto inner = define(2, text.isEmpty() ? "<b>x</b>" : text, {off});
        const auto outer = define(7, "outer",
                                  {action("foIND", text, SettingsFrom::Custom), runs(2),
                                   action("foIND", text, SettingsFrom::Current), runs(2)});
        inner->IconText = text;
        const SharedButtons gathered = gatherButtons(buttons, 7);
        ASSERT_EQ(gathered.trouble, QString());
        const QString written = buttonFileText(gathered);
        for (const char *lineEnd : {"\n", "\r\n", "\r"}) {
            const QByteArray bytes = "\xEF\xBB\xBF" + QString(written).replace('\n', lineEnd).toUtf8();
            const SharedButtons read = readButtonFile(bytes, tools);
            ASSERT_EQ(read.trouble, QString()) << written.toStdString();
            ASSERT_EQ(read.buttons.size(), 2);
            EXPECT_EQ(*read.buttons.at(1), *inner) << written.toStdString();
            const PlacedButtons placed = placeButtons(read, buttons, 7); // where all of them are already
            ASSERT_EQ(placed.places.size(), 1);
            EXPECT_EQ(*placed.places.front().button, *outer) << written.toStdString();
        }
    }
}

TEST_F(ButtonFiles, comeReadyMadeAsTheyAreWritten) {
    const QDir folder(qEnvironmentVariable("TOLVO_SOURCE") + "/data/PowerButtons");
    const QStringList names = folder.entryList(QDir::Files);
    EXPECT_GE(names.size(), 8);
    for (const QString &name : names) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly) && name.endsWith(buttonFileEnding));
        const QString text = QString::fromUtf8(file.readAll());
        const SharedButtons read = loadButtonFile(file.fileName(), tools);
        ASSERT_EQ(read.trouble, QString()) << name.toStdString();
        EXPECT_EQ(buttonFileText(read), text) << name.toStdString();
    }
}

TEST_F(ButtonFiles, areRefusedByTheLine) {
    QString many;
    for (int i = 0; i < 10000; ++i)
        many += "step: ccUPP\n";
    QString deep = file("step: pbPBT\nsettings: own\nset: PowerButton=2\n");
    for (int i = 2; i <= 5; ++i) {
        deep += QString("button: %1\n").arg(i);
        for (int steps = 0; steps < 10; ++steps)
            deep += i == 5 ? "step: ccUPP\n"
                           : QString("step: pbPBT\nsettings: own\nset: PowerButton=%1\n").arg(i + 1);
    }
    const QString inner = "step: pbPBT\nsettings: own\nset: PowerButton=%1\n";
    const std::pair<QString, const char *> cases[] = {
        {"", "Line 1: this is not a PowerButton of Tolvo"},
        {"\n<html><script>alert(1)</script>", "Line 2: this is not a PowerButton of Tolvo"},
        {"Tolvo PowerButton 2\nnew: x", "Line 1: this PowerButton was written by a newer version of Tolvo"},
        {"Tolvo PowerButton 1.5", "Line 1: this is not a PowerButton of Tolvo"},
        {file(""), "Line 1: there are no steps"},
        {file("name: y"), "Line 3: \"name\" is given twice"},
        {file("font: \"Ari"), "Line 3: \"\"Ari\" is damaged"},
        {file("font: \"\\u{110000}\""), "Line 3: \"\"\\u{110000}\"\" is damaged"},
        {file("size: nan"), "Line 3: \"nan\" is not a number that fits an icon"},
        {file("bold: 1"), "Line 3: yes or no is expected here"},
        {file("step: ccUPP\nstep: xxYYY # Shell"), "Line 4: there is no tool \"xxYYY\""},
        {file("step: toolNULL"), "Line 3: there is no tool \"toolNULL\""},
        {file("step: ccUPP\nrun: /bin/sh"), "Line 4: \"run\" is not known here"},
        {file("step: foIND\nsettings: mine"), "Line 4: own, last used or asked for is expected here"},
        {file("step ccUPP"), "Line 3: a colon is missing after the first word"},
        {file("set: Find=x"), "Line 3: \"set\" is not known here"},
        {file(many), "Line 1003: there are more than 1000 steps"},
        {deep, "Line 65: more than 1000 steps would run"},
        {file(inner.arg(1)), "Line 3: with this step the PowerButton would run itself"},
        {file(inner.arg(2) + "button: 2\n" + inner.arg(1)),
         "Line 7: with this step the PowerButton would run itself"},
        {file(inner.arg(3)), "Line 3: this step runs a PowerButton that is not in the file"},
        {file("step: pbPBT"), "Line 3: this step runs a PowerButton that is not in the file"},
        {file("step: ccUPP\nbutton: 2\nstep: ccUPP"), "Line 4: no step runs this PowerButton"},
        {file("step: ccUPP\nbutton: 3"), "Line 4: button 2 is expected here"},
        {file("name: " + QString(300, 'x')).remove("name: x\n"), "Line 2: the name is too long"},
        {QString(1'000'001, '#'), "This is too long for a PowerButton"},
    };
    for (const auto &[text, trouble] : cases) {
        const SharedButtons read = readButtonFile(text, tools);
        EXPECT_EQ(read.trouble, QLatin1StringView(trouble)) << text.left(300).toStdString();
        EXPECT_TRUE(read.buttons.isEmpty());
    }
    EXPECT_EQ(readButtonFile(QByteArray("Tolvo PowerButton 1\nname: \xC3\xA9\nicon: \xE9\n"), tools).trouble,
              "Line 3: this is not UTF-8");
    EXPECT_EQ(loadButtonFile("/nowhere/x.tolvobutton", tools).trouble, "There is no file \"x.tolvobutton\"");
}

TEST_F(ButtonFiles, sayWhatTheyDo) {
    define(4, "inner", {action("ccUPP"), action("foIND", "Spaces=2", SettingsFrom::Custom)});
    define(1, "outer",
           {runs(4), action("foWRP", {}, SettingsFrom::Current), action("foREM"),
            action("edREP", "Mode=3, Find=a+, Replace=b, ReplaceAll=1", SettingsFrom::Custom)});
    EXPECT_EQ(
        sharedStepLines(gatherButtons(buttons, 1)).join("|"),
        "1. Run PowerButton: inner|   1.1. UPPER CASE|   1.2. Indent: spaces 2|"
        "2. Word wrap: as used last|3. Remove blank lines: asks when run|"
        "4. Search & replace: regular expression, find \u201Ca+\u201D, replace with \u201Cb\u201D, all");
}

TEST_F(ButtonFiles, areNotMadeOfWhatRunsNowhereElse) {
    define(1, "a", {action("ccUPP"), action("toolNULL")});
    define(2, "b", {runs(8)});
    define(3, "c", {runs(5)});
    define(5, "d", {action("ccUPP"), runs(3)});
    define(6, "e", {});
    define(7, "f", {std::make_shared<CAction>()});
    const std::pair<int, const char *> cases[] = {
        {1, "Step 2 of \"a\" has no tool"},
        {2, "Step 1 of \"b\" runs no PowerButton that is defined"},
        {3, "Step 2 of \"d\" makes the PowerButton run itself"},
        {6, "There are no actions defined for this PowerButton"},
        {7, "Step 1 of \"f\" has no tool"},
        {8, "This PowerButton is not defined"},
    };
    for (const auto &[number, trouble] : cases)
        EXPECT_EQ(gatherButtons(buttons, number).trouble, QLatin1StringView(trouble));
}

TEST_F(ButtonFiles, findPlacesForWhatTheyRun) {
    define(1, "deep", {action("ccUPP")});
    define(2, "middle", {runs(1)});
    define(3, "outer", {runs(2), runs(1)});
    const SharedButtons shared = gatherButtons(buttons, 3);
    const auto fresh = [&](int taken) {
        buttons = CPowerButtonCollection();
        for (int number = 1; number <= taken; ++number)
            define(number, QString("theirs %1").arg(number), {action("ccLOW")});
    };
    fresh(2);
    PlacedButtons placed = placeButtons(shared, buttons, 2); // in place of theirs
    ASSERT_EQ(placed.places.size(), 3) << placed.trouble.toStdString();
    for (const auto &[number, button] : placed.places)
        buttons.Add(button, number);
    EXPECT_EQ(actionsOf(*buttons.Item(2)), "pbPBT(PowerButton=4) pbPBT(PowerButton=3)");
    EXPECT_EQ(actionsOf(*buttons.Item(4)), "pbPBT(PowerButton=3)");
    EXPECT_EQ(placeButtons(shared, buttons, 8).places.size(), 1); // the inner ones are there
    fresh(7);
    placed = placeButtons(shared, buttons, 8);
    EXPECT_EQ(placed.trouble, "It runs other PowerButtons, for which 2 more empty places are needed");
    EXPECT_TRUE(placed.places.isEmpty());
}

} // namespace
} // namespace tolvo
