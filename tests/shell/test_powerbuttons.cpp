// SPDX-License-Identifier: MIT
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;
using enum SettingsFrom;

namespace {

const QString indentSettings = "Spaces=4, Text=# , RadioButton=2";

TEST(PowerButtons, runTheirActionsInTurn) {
    User user("a|«b c»");
    user.defines(2, {User::action("ccUPP"), User::action("foIND", Custom, indentSettings),
                     User::action("foCOL", Custom), User::action("foIND", static_cast<SettingsFrom>(7))});
    user.session.imgPower_Click(1);
    user.sees("a|«# B C»", "Indent increased");
    EXPECT_EQ(user.session.sLastTool, "PB1");
    for (const char *section : {"PBUsage", "TotPBUsage"}) {
        EXPECT_EQ(user.counter(QLatin1StringView(section), "ccUPP"), "1");
        EXPECT_EQ(user.counter(QLatin1StringView(section), "foIND"), "2");
    }
    EXPECT_EQ(user.counter("Usage", "foIND"), "1");
    EXPECT_EQ(user.counter("Usage", "foCOL"), "1");
    user.session.cmdUndo_Click(); // each Action is a step of its own
    user.sees("a|«B C»");
}

TEST(PowerButtons, passBySwitchedOffSteps) {
    User user("a");
    const auto off = [](const QString &token, SettingsFrom option = Prompt, const QString &details = {}) {
        auto action = User::action(token, option, details);
        action->setSwitchedOff(true);
        return action;
    };
    user.defines(1, {off("foIND"), User::action("ccUPP"), off("foIND", Current), off("edSRC"),
                     off("pbPBT", Custom, "PowerButton=1")});
    user.session.imgPower_Click(0);
    user.sees("«»A", "1 characters: upper case");
    EXPECT_EQ(user.opened, QStringList());
    EXPECT_FALSE(user.session.bRightButton);
    EXPECT_EQ(user.counter("PBUsage", "foIND") + user.counter("TotPBUsage", "foIND"), "");
    user.session.cmdUndo_Click(); // the one step that ran
    user.sees("«»a");
    user.defines(2, {off("ccUPP")});
    user.session.imgPower_Click(1);
    user.sees("«»a");
    EXPECT_EQ(user.hint, "All its steps are switched off");
}

TEST(PowerButtons, areThoseOfTheStoreWhenTheEditorOpens) {
    User user("a");
    user.defines(1, {User::action("ccUPP")});
    const auto put = [&user](const QString &section, const QString &key, const QString &value) {
        user.store.SaveSetting("Tolvo", "PowerButtons\\Button 1" + section, key, value);
    };
    put("", "Name", "Theirs"); // as another run of the program does
    put("", "X", "left");
    put("\\1", "Token", "foIND");
    put("\\1", "Details", indentSettings);
    put("\\1", "DlgOption", "1");
    user.session.imgPower_Click(0);
    user.sees("«»A"); // what the row shows
    for (int opening = 0; opening < 2; ++opening) {
        user.session.bRightButton = true;
        user.session.imgPower_Click(0);
        user.session.bRightButton = false;
    }
    user.isToldSomethingLike("PowerButton 1 'Theirs'"); // once
    EXPECT_EQ(user.repainted.count(0), 3);              // once it was read, and after each opening
    user.session.imgPower_Click(0);
    user.sees("«»# A");
}

TEST(PowerButtons, settingsLastUsedHoldForTheActionsAfter) {
    User user("a");
    user.defines(1, {User::action("foIND", Prompt)});
    user.defines(2, {User::action("foIND", Current), User::action("foIND", Prompt)});
    user.session.imgPower_Click(0);
    EXPECT_EQ(user.opened, QStringList("Indent"));
    user.session.imgPower_Click(1);
    user.sees("«»> > > a");
    EXPECT_EQ(user.opened, QStringList("Indent"));
    user.session.imgPower_Click(0); // as if the right button were down still
    EXPECT_EQ(user.opened.last(), "editor 0");
}

TEST(PowerButtons, searchWithTheSettingsLastUsedWithoutTheWindow) {
    User user("one, two One");
    user.searchRequest.find = "one, two"; // a settings string would cut it at the comma
    user.searchRequest.replace = "three";
    user.searchRequest.direction = SearchDirection::FromStart;
    user.defines(1, {User::action("edSRC", Current)});
    user.defines(2, {User::action("edREP", Current)});
    user.session.imgPower_Click(0);
    user.sees("«one, two» One");
    user.session.bRightButton = false;
    user.session.imgPower_Click(1);
    user.sees("«three» One");
    user.searchRequest.find = "e";
    user.searchRequest.replaceAll = true;
    user.session.bRightButton = false;
    user.session.imgPower_Click(1);
    EXPECT_EQ(user.session.txtCurrent().Text(), "thrthreethree Onthree");
    EXPECT_EQ(user.opened, QStringList());
    // A direct command opens the window, whatever a step has left behind.
    user.runs("edSRC");
    EXPECT_EQ(user.opened, QStringList("search"));
}

TEST(PowerButtons, goOnAfterAnActionThatFailed) {
    User user("a");
    user.defines(1, {User::action("foIND", Custom, "RadioButton=x"),
                     User::action("pbPBT", Custom, "PowerButton="), User::action("toolNULL"),
                     User::action("ccUPP")});
    user.session.imgPower_Click(0);
    user.isToldSomethingLike("frmMain::PowerButtonDespatcher");
    user.isToldSomethingLike("(error 13)");
    user.isTold("This tool is not implemented yet");
    user.sees("«»A");
}

TEST(PowerButtons, reportATokenWithoutStoredSettings) {
    User user("a");
    user.session.PowerButtonDespatcher(*User::action("ccUPP", Custom));
    user.isToldSomethingLike("No handler for Tool 'UPPER CASE' (ccUPP)");
    user.sees("«»a");
}

TEST(PowerButtons, nest) {
    User user("a");
    user.defines(1, {User::action("pbPBT", Custom, "PowerButton=2"),
                     User::action("pbPBT", Custom, "PowerButton=3"),
                     User::action("foIND", Custom, indentSettings)});
    user.defines(2, {User::action("ccUPP")});
    user.session.imgPower_Click(0);
    user.isTold("There are no actions defined for this PowerButton\r\n\r\n"
                "Right-click the PowerButton to define a series of actions");
    user.sees("«»# A");
    EXPECT_EQ(user.session.sLastTool, "PB0");
}

TEST(PowerButtons, aCycleEndsInOneReportAndAllStaysAsItWas) {
    User user("a«b»");
    user.runs("ccUPP");
    user.session.cmdUndo_Click(); // what Redo offers stays as well
    restore(user.session.txtCurrent(), stateOf("a«b»"));
    user.session.setDirty(false);
    user.session.setStatus("status");
    const auto run = [](int number) {
        return User::action("pbPBT", Custom, QString("PowerButton=%1").arg(number));
    };
    user.defines(1, {User::action("ccUPP"), run(2), run(2)});
    user.defines(2, {run(1), run(1)});
    user.session.imgPower_Click(0);
    user.isToldSomethingLike("PowerButton 1 runs itself (error 28)");
    user.sees("a«b»", "status");
    EXPECT_FALSE(user.session.bDirty());
    EXPECT_TRUE(user.canRedo);
    user.session.cmdRedo_Click();
    user.sees("a«B»");
    user.session.cmdUndo_Click();
    user.session.cmdUndo_Click();
    user.sees("«»ab", "Reached end of Undo buffer");
    restore(user.session.txtCurrent(), stateOf("a«b»"));
    user.defines(2, {User::action("ccUPP")});
    user.session.imgPower_Click(0); // nothing of the cycle is left behind
    user.sees("a«B»");
}

TEST(PowerButtons, refuseAModeThatIsNotThere) {
    User user("ab");
    user.session.PowerButtonDespatcher(*User::action("edSRC", Custom, "Mode=4, Find=b, Direction=S"));
    user.sees("«»ab");
    user.isToldSomethingLike("There is no search mode 4");
}

} // namespace
