// SPDX-License-Identifier: MIT
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

TEST(Keyboard, editsAndWalksAtTheCaret) {
    // The key with Ctrl, before, afterwards, what is told
    for (const char16_t *example :
         {u"U→«»abcd→A«»bcd", u"U→a«bc»d→aBC«»d", u"U→ab«»→ab«»", u"U→a«»|b→a|«»b",
          u"U→«»\U0001F600b→\U0001F600«»b", // never half a pair
          u"L→«»ABC→a«»BC", u"S→«aB»c→Ab«»c", u"K→«»abc def→A«»bc def", u"K→«abc def»→Abc Def«»",
          u"K→abc def«»→Abc Def«»", // nothing to select: the whole text
          u"T→a«»b→ba«»", u"T→«»ab→«»ab", u"T→ab«»→ab«»", u"T→a«»\U0001F600c→\U0001F600a«»c",
          u"T→a«bc»d→ba«»cd", u"T→a«»|b→|a«»b", u"A→a«»|b→«a|b»",
          // The partner of a bracket
          u"[→«»(a(b)c)→(a(b)c«)»", u"[→(a(b)c)«»→«(»a(b)c)", u"[→(a(b)«»c)→(a«(»b)c)", u"[→a <«»b>→a <b«>»",
          u"[→[(«»])→«[»(])", // the right side first
          u"[→«»(→«»(→No matching )", u"[→«»)→«»)→No matching (", u"[→a«»b→a«»b", u"[→«»→«»"}) {
        const QStringList parts = QString::fromUtf16(example).split(u'→');
        SCOPED_TRACE(shown(parts[0] + parts[1]));
        User user(parts[1]);
        user.presses(parts[0].front().toLatin1());
        if (parts.size() > 3)
            user.isTold(parts[3]);
        user.sees(parts[2]);
    }
}

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
