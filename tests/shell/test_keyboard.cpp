// SPDX-License-Identifier: MIT
#include "tests/shell/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

constexpr int openingBracket = 'A' - 1 + 27; // Ctrl-[ has the character code 27

TEST(Keyboard, editsAtTheCaret) {
    const struct {
        char key;
        const char16_t *before;
        const char16_t *after;
    } cases[] = {
        {'U', u"«»abcd", u"A«»bcd"},
        {'U', u"a«bc»d", u"aBC«»d"},
        {'U', u"ab«»", u"ab«»"},
        {'U', u"a«»|b", u"a|«»b"},
        {'U', u"«»\U0001F600b", u"\U0001F600«»b"}, // never half a pair
        {'L', u"«»ABC", u"a«»BC"},
        {'S', u"«aB»c", u"Ab«»c"},
        {'K', u"«»abc def", u"A«»bc def"},
        {'K', u"«abc def»", u"Abc Def«»"},
        {'K', u"abc def«»", u"Abc Def«»"}, // nothing to select: the whole text
        {'T', u"a«»b", u"ba«»"},
        {'T', u"«»ab", u"«»ab"},
        {'T', u"ab«»", u"ab«»"},
        {'T', u"a«»\U0001F600c", u"\U0001F600a«»c"},
        {'T', u"a«bc»d", u"ba«»cd"},
        {'T', u"a«»|b", u"|a«»b"},
        {'A', u"a«»|b", u"«a|b»"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.key);
        User user;
        user.startsWith(QString::fromUtf16(row.before));
        user.presses(row.key);
        user.sees(QString::fromUtf16(row.after));
    }
}

TEST(Keyboard, walksAlongTheTextWithOneUndoStateAtMost) {
    User user;
    user.startsWith("«»abcd");
    for (int i = 0; i < 5; ++i)
        user.presses('U');
    user.sees("ABCD«»");
    user.session.cmdUndo_Click();
    user.sees("«»abcd");
    EXPECT_EQ(user.counter("Usage", "ccUPP"), QString());
}

TEST(Keyboard, initialCapsTellTheLengthOfALongSelection) {
    User user;
    user.startsWith("«ab cd» ef");
    user.presses('K');
    user.sees("Ab Cd«» ef", "5 characters: Initial caps");
}

TEST(Keyboard, findsThePartnerOfABracket) {
    const struct {
        const char16_t *before;
        const char16_t *after;
        const char16_t *told;
    } cases[] = {
        {u"«»(a(b)c)", u"(a(b)c«)»", nullptr}, {u"(a(b)c)«»", u"«(»a(b)c)", nullptr},
        {u"(a(b)«»c)", u"(a«(»b)c)", nullptr}, {u"a <«»b>", u"a <b«>»", nullptr},
        {u"[(«»])", u"«[»(])", nullptr}, // the right side first
        {u"«»(", u"«»(", u"No matching )"},    {u"«»)", u"«»)", u"No matching ("},
        {u"a«»b", u"a«»b", nullptr},           {u"«»", u"«»", nullptr},
    };
    for (const auto &row : cases) {
        User user;
        user.startsWith(QString::fromUtf16(row.before));
        user.presses(static_cast<char>(openingBracket));
        if (row.told)
            user.isTold(QString::fromUtf16(row.told));
        user.sees(QString::fromUtf16(row.after));
    }
}

TEST(Keyboard, commandsOfTheWindow) {
    User user;
    user.startsWith("a|b«»");
    user.pressesKey(keyCode::Up, ShiftState::Alt);
    user.sees("b«»|a");
    user.pressesKey(keyCode::Down, ShiftState::Alt);
    user.sees("a|b«»");
    user.pressesKey(keyCode::Up, ShiftState::Alt | ShiftState::Shift);
    user.sees("a|b«»");
    user.pressesKey(keyCode::W, ShiftState::Alt);
    EXPECT_TRUE(user.session.bWordWrap);
    user.pressesKey(keyCode::F1);
    user.isTold("Help is not implemented yet");
    user.pressesKey(keyCode::F3);
    user.searchBox = "x";
    user.pressesKey(keyCode::F3);
    user.pressesKey(keyCode::F7); // nothing without Shift
    user.pressesKey(keyCode::F7, ShiftState::Shift);
    user.isTold("Spelling and grammar check complete");
    user.presses('F');
    user.presses('H');
    user.presses('H', 0); // Backspace is the text box's
    user.session.bRightButton = false;
    user.presses('O');
    user.pressesKey(keyCode::Q, ShiftState::Alt);
    EXPECT_EQ(user.opened.join(u' '),
              "search next grammar -1 search replace Options Changes have been made to the text");
    user.presses('C'); // copying is the text box's
    EXPECT_FALSE(user.session.bSessionOver);
    user.presses('C', ShiftState::Ctrl | ShiftState::Shift);
    EXPECT_TRUE(user.session.bSessionOver);
}

TEST(Keyboard, consumesOnlyWhatItHandles) {
    User user;
    user.startsWith("a");
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
    User user;
    user.startsWith("a");
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

TEST(Keyboard, twoSetsOfKeysRunPowerButtons) {
    User user;
    user.startsWith("a");
    user.defines(1, {User::action("ccUPP")});
    user.defines(8, {User::action("ccLOW")});
    user.pressesKey(keyCode::F1, ShiftState::Alt);
    user.sees("«»A");
    user.pressesKey(keyCode::Digit8, ShiftState::Ctrl);
    user.sees("«»a");
    user.pressesKey(keyCode::F8, ShiftState::Alt | ShiftState::Shift);
    user.pressesKey(keyCode::Digit1, ShiftState::Ctrl | ShiftState::Shift);
    user.sees("«»a");
    EXPECT_EQ(user.opened.join(u'|'), "editor 7|editor 0");
}

TEST(Keyboard, ctrlZTakesBackTypingFirst) {
    User user;
    user.startsWith("a");
    user.runs("ccUPP");
    user.hasTypingToUndo = true;
    user.presses('Z');
    user.sees("«»A");
    user.hasTypingToUndo = false;
    user.presses('Z');
    user.sees("«»a");
    user.presses('Z', ShiftState::Ctrl | ShiftState::Shift);
    user.sees("«»A");
    user.presses('Z');
    user.presses('Y');
    user.sees("«»A");
}

TEST(Keyboard, tellsTheCharacterAtTheCaret) {
    User user;
    user.startsWith("x|a«»€");
    user.pressesKey(keyCode::Slash, ShiftState::Ctrl);
    user.isTold("Position: Row 2, column 2\r\n\r\nCharacter: €\r\n Decimal: 128\r\n Hex: 80");
    user.startsWith("a«»");
    user.pressesKey(keyCode::Slash, ShiftState::Ctrl);
    user.sees("a«»", "Not a valid character position");
}

} // namespace
