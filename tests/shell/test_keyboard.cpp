// SPDX-License-Identifier: MIT
#include "shell/key_sheet.h"
#include "tests/support/User.h"

#include <QSet>

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
    user.isTold("Position: Row 2, column 2\r\n\r\nCharacter: €\r\n Decimal: 128\r\n Hex: 80\r\n "
                "Unicode: U+20AC EURO SIGN");
}

TEST(Keyboard, servesTheTextFromOtherControls) {
    struct Row {
        int code;
        int shiftState;
        int character;
        bool consumed;
        QString picture;
        QString status;
    };
    const auto ctrl = [](char letter) { return letter - 'A' + 1; };
    const Row rows[] = {
        {'U', ShiftState::Ctrl, ctrl('U'), true, "A«»b", {}},
        {'Z', ShiftState::Ctrl, ctrl('Z'), true, "«»ab", {}},
        {'Z', ShiftState::Ctrl | ShiftState::Shift, ctrl('Z'), true, "A«»b", {}},
        {0, 0, 8, false, "«»ab", "kept"}, // Backspace, Enter and letters are nobody's
        {0, 0, 13, false, "«»ab", "kept"},
        {'X', 0, 'x', false, "«»ab", "kept"},
        {'C', ShiftState::Ctrl, ctrl('C'), false, "«»ab", "kept"},
        {'V', ShiftState::Ctrl, ctrl('V'), false, "«»ab", "kept"},
        {0, ShiftState::Ctrl, -1, false, "«»ab", "kept"},
    };
    User user("«»ab");
    for (const Row &row : rows) {
        user.session.setStatus("kept");
        EXPECT_FALSE(user.keys.formKeyDown(row.code, row.shiftState));
        EXPECT_EQ(user.keys.commandFromElsewhere(row.code, row.character), row.consumed) << row.character;
        user.sees(row.picture, row.status);
        if (row.picture == "A«»b" && row.shiftState != ShiftState::Ctrl)
            user.startsWith("«»ab");
    }
}

TEST(KeyTable, hasOneCommandForEachKey) {
    QSet<QString> seen;
    for (const KeyRow &row : keyTable()) {
        for (int code = row.first; code <= row.last; ++code)
            EXPECT_NE(findKey(row.stage, code, row.modifiers.held), nullptr) << code;
        const QString names = keyNames(row);
        EXPECT_FALSE(seen.contains(names)) << names.toStdString();
        seen += names;
        EXPECT_EQ(findKey(row.stage, row.first, row.modifiers.held), &row) << names.toStdString();
    }
    for (const char *name : {"Ctrl-Shift-C", "Alt-D", "Ctrl-Z", "Ctrl-Shift-Z", "Ctrl-[", "Ctrl-/", "Alt-Up",
                             "Shift-F7", "F3", "Alt-F1 to F8", "Ctrl-Shift-1 to 8"})
        EXPECT_TRUE(seen.contains(name)) << name;
}

TEST(KeySheet, isFilteredByKeyCommandAndGroup) {
    const auto sheet = keySheet({{KeyGroup::History, "Alt-U", "Redo"}, {KeyGroup::Session, "F9", "Nap"}});
    struct Row {
        const char *filter;
        const char *keys; ///< of the only row found
    };
    const Row rows[] = {
        {"ctrl+shift+z", "Ctrl-Shift-Z, Ctrl-Y, Alt-U"},
        {"CTRL-Y", "Ctrl-Shift-Z, Ctrl-Y, Alt-U"},
        {"  wrap ", "Alt-W"},
        {"f9 program", "F9"},
        {"bracket", "Ctrl-[, Ctrl-]"},
        {"edit powerbutton f8", "Alt-Shift-F1 to F8, Ctrl-Shift-1 to 8"},
    };
    for (const Row &row : rows) {
        const auto found = filtered(sheet, row.filter);
        ASSERT_EQ(found.size(), 1) << row.filter;
        EXPECT_EQ(found.first().keys, row.keys) << row.filter;
    }
    EXPECT_EQ(filtered(sheet, " "), sheet);
    EXPECT_TRUE(filtered(sheet, "wrap F9").isEmpty());
}

} // namespace
