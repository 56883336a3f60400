// SPDX-License-Identifier: MIT
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

TEST(Keyboard, walksAlongTheTextWithOneUndoStateAtMost) {
    User user("«»abcd");
    for (int i = 0; i < 5; ++i)
        user.presses('U');
    user.sees("ABCD«»");
    user.session.cmdUndo_Click();
    user.sees("«»abcd");
    EXPECT_EQ(user.counter("Usage", "ccUPP"), QString());
}

TEST(Keyboard, consumesOnlyWhatItHandles) {
    User user("a");
    user.presses('C'); // copying is the text box's, and so is Backspace
    user.presses('H', 0);
    EXPECT_FALSE(user.session.bSessionOver || !user.opened.isEmpty());
    for (const int code : {113, 115, 116, 117, 118, static_cast<int>('D')})
        EXPECT_FALSE(user.keys.formKeyDown(code, 0)) << code;
    user.session.setStatus("old");
    EXPECT_FALSE(user.keys.textKeyPress('x'));
    user.sees("«»a", {});                                // every character empties the status line
    EXPECT_FALSE(user.keys.textKeyPress('R' - 'A' + 1)); // nothing to repeat yet
    EXPECT_FALSE(user.keys.formKeyPress('x'));
    user.headless.clipboard.text = QString(65535, u'y');
    EXPECT_TRUE(user.keys.formKeyPress('V' - 'A' + 1));
    user.isToldSomethingLike("You cannot paste this text.");
}

TEST(Keyboard, repeatsToolsAndPowerButtons) {
    User user("a");
    user.cancelsDialogs = true;
    user.runs("foIND");
    user.presses('R'); // no dialog this time
    user.sees("«»> a", "Repeated: Indent...");
    user.defines(3, {User::action("ccUPP")});
    user.session.bRightButton = false;
    user.session.imgPower_Click(2);
    user.types("b");
    user.presses('R');
    user.sees("«»B> A", "Repeated: Button 3");
}

TEST(Keyboard, describesTheCharacterAtTheCaret) {
    User user("x|a«»€");
    user.pressesKey(keyCode::Slash, ShiftState::Ctrl);
    user.isTold("Position: Row 2, column 2\r\n\r\nCharacter: €\r\n Decimal: 128\r\n Hex: 80");
}

} // namespace
