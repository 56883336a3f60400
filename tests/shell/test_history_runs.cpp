// SPDX-License-Identifier: MIT
// What the history knows of tools and PowerButtons: names, whole runs taken back, and PowerButtons made of
// it.
#include "shell/record_button.h"
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;
using enum SettingsFrom;

namespace {

const QString indentSettings = "Spaces=4, Text=# , RadioButton=2";

class HistoryRuns : public ::testing::Test {
  protected:
    static QString names(const QList<TextHistory::Entry> &entries) {
        QStringList list;
        for (const auto &entry : entries)
            list += entry.name;
        return list.join('|');
    }
    static QString stepsOf(const QList<std::shared_ptr<CAction>> &actions) {
        QStringList list;
        for (const auto &action : actions)
            list += action->Tool()->Token() + QString("?=-")[static_cast<int>(action->DlgOption())] +
                    action->Details();
        return list.join('|');
    }
    static void copies(User &user) { user.session.history().noteCopy(textState(user.session.txtCurrent())); }
    /// The PowerButtons up to a number, as its editor does.
    static void saves(User &user, int last) {
        for (int number = 1; number <= last; ++number)
            user.headless.oPBMethods.SavePBSettings(*user.headless.oPowerButtons.Item(number), number);
    }
    static void takesRunBack(User &user) { user.pressesKey('Z', ShiftState::Ctrl | ShiftState::Alt); }
};

TEST_F(HistoryRuns, haveTheNamesOfWhatWasDone) {
    User user("a«»");
    user.defines(3, {User::action("ccUPP"), User::action("foIND", Custom, indentSettings)});
    user.types("b c");
    user.runs("ccTIT");
    user.runs("ccTIT"); // changes nothing
    user.types("!");
    user.session.imgPower_Click(2);
    user.session.imgFavourites_Click("foBOTH");
    user.headless.clipboard.text = "x";
    user.session.cmdRefresh_Click();
    EXPECT_EQ(names(user.session.historyBehind()),
              "Refresh|PowerButton 3: Button 3|typing|Title Case|typing");
    EXPECT_EQ(names(user.session.historyAhead()), "");
    user.session.cmdUndo_Click();
    user.session.cmdUndo_Click(); // into the PowerButton
    user.sees("«»!AB C");
    EXPECT_EQ(names(user.session.historyBehind()), "PowerButton 3: Button 3|typing|Title Case|typing");
    EXPECT_EQ(names(user.session.historyAhead()), "PowerButton 3: Button 3|Refresh");
    const auto ahead = user.session.historyAhead();
    user.session.goInHistory(user.session.historyBehind().last().place);
    user.sees("a«»");
    EXPECT_EQ(names(user.session.historyAhead()), "typing|Title Case|typing|PowerButton 3: Button 3|Refresh");
    user.session.goInHistory(ahead.first().place);
    EXPECT_EQ(user.session.txtCurrent().Text(), "# !AB C");
    user.session.goInHistory(99); // an entry that is gone
    EXPECT_EQ(user.session.txtCurrent().Text(), "# !AB C");
}

TEST_F(HistoryRuns, areTakenBackAsAWholeAndBroughtBack) {
    User user("a«b»c");
    takesRunBack(user);
    user.sees("a«b»c", "No PowerButton to take back");
    EXPECT_EQ(user.headless.sound.beeps, 1);
    user.runs("ccREV");
    user.defines(2, {User::action("ccLOW"), User::action("foIND", Custom, indentSettings)});
    user.defines(1, {User::action("ccUPP"), User::action("pbPBT", Custom, "PowerButton=2"),
                     User::action("pbALL"), User::action("ccUPP"), User::action("pbCLR")});
    user.session.imgPower_Click(0);
    user.sees("«»# ABC");
    select(user.session.txtCurrent(), 5, 0);
    user.types("d e");
    user.runs("ccREV");
    takesRunBack(user);
    user.sees("a«B»c", "");
    EXPECT_TRUE(user.session.bDirty());
    user.presses('Y'); // all of it at once
    EXPECT_EQ(user.session.txtCurrent().Text(), "# abcD E");
    user.session.cmdUndo_Click(); // the states of the single Actions are where they were
    user.session.cmdUndo_Click();
    EXPECT_EQ(user.session.txtCurrent().Text(), "# ABC");
    user.session.cmdUndo_Click();
    EXPECT_EQ(user.session.txtCurrent().Text(), "# abc");
    takesRunBack(user); // from its middle
    user.sees("a«B»c");
    takesRunBack(user);
    user.sees("a«B»c", "No PowerButton to take back");
    user.types("x"); // ends what could be brought back
    EXPECT_EQ(names(user.session.historyAhead()), "");
}

TEST_F(HistoryRuns, becomeAPowerButton) {
    User user("one  two«»");
    EXPECT_EQ(stepsOf(user.session.history().latestActions()), "");
    recordPowerButton(user.session);
    user.isTold("No tool has changed the text so far.");

    user.runs("foSSP");
    user.runs("foIND"); // its dialog asks for "> "
    user.types("!");
    user.session.imgFavourites_Click("chPNC");
    user.defines(1, {User::action("ccUPP"), User::action("pbPBT", Custom, "PowerButton=2")});
    user.defines(2, {User::action("foIND", Custom, indentSettings)});
    user.session.imgPower_Click(0);
    const QString indents = "foIND=Spaces=4, Text=> , RadioButton=2|edPLA?|chPNC?|";
    const QString later = "ccUPP?|foIND=" + indentSettings;
    EXPECT_EQ(stepsOf(user.session.history().latestActions()), "foSSP?|" + indents + later);
    copies(user);
    EXPECT_EQ(stepsOf(user.session.history().latestActions()), "foSSP?|" + indents + later);
    user.runs("ccLOW");
    user.runs("ccUPP");
    user.session.cmdUndo_Click(); // not what was taken back
    EXPECT_EQ(stepsOf(user.session.history().latestActions()), "ccLOW?");

    saves(user, 2);
    recordPowerButton(user.session);
    EXPECT_EQ(user.opened.last(), "editor 2");
    user.cancelsDialogs = true;
    user.runs("foIND");
    EXPECT_EQ(stepsOf(user.session.history().latestActions()), "ccLOW?");
    for (int number = 1; number <= 8; ++number)
        user.defines(number, {User::action("ccUPP")});
    saves(user, 8);
    recordPowerButton(user.session);
    user.isToldSomethingLike("All PowerButtons are in use.");
}

TEST_F(HistoryRuns, takeTheReplacementsOfTheSearchWindow) {
    User user("one two one");
    SearchRequest request{.find = "one", .replace = "1"};
    request.direction = SearchDirection::FromStart;
    user.session.oSearch.run(SearchVerb::ReplaceAll, request, SearchedBy::Window);
    user.isToldSomethingLike("2");
    EXPECT_EQ(names(user.session.historyBehind()), "Search & replace");
    const QString steps = stepsOf(user.session.history().latestActions());
    EXPECT_TRUE(steps.startsWith("edREP=Mode=1, Find=one,") && steps.contains("ReplaceAll=1"))
        << steps.toStdString();
    request.find = "two";
    request.replace = "a, b"; // what a settings string can't hold
    user.session.oSearch.run(SearchVerb::ReplaceAll, request, SearchedBy::Window);
    user.isToldSomethingLike("1");
    EXPECT_TRUE(stepsOf(user.session.history().latestActions()).endsWith("|edREP-"));
}

} // namespace
