// SPDX-License-Identifier: MIT
#include "tests/shell/User.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

TEST(Undo, givesBackTextAndSelection) {
    User user("THE [«old» man]");
    user.runs("ccUPP");
    user.runs("pbCLR");
    user.session.cmdUndo_Click(); // the selection alone is no state of its own
    user.sees("«»THE [old man]", {});
    EXPECT_TRUE(user.session.bDirty());
    user.session.cmdRedo_Click();
    user.sees("THE [«OLD» man]");
}

TEST(Undo, saysWhereItsBuffersEnd) {
    User user("a");
    user.session.cmdUndo_Click();
    user.sees("«»a", "Reached end of Undo buffer");
    user.session.cmdRedo_Click();
    user.sees("«»a", "Reached end of Redo buffer");
    EXPECT_EQ(user.headless.sound.beeps, 2);
    EXPECT_FALSE(user.session.bDirty());
    user.session.bSounds = false;
    user.session.cmdUndo_Click();
    EXPECT_EQ(user.headless.sound.beeps, 2);
}

TEST(Undo, keepsWhatWasTyped) {
    User user("a");
    user.types("x");
    user.session.cmdUndo_Click();
    user.sees("«»a");
    user.session.cmdRedo_Click();
    user.sees("x«»a");
}

TEST(Undo, redoAsksBeforeTypingIsLost) {
    User user("a");
    user.runs("ccUPP");
    user.session.cmdUndo_Click();
    user.types("x");
    user.boxes.answers = {BoxAnswer::No, BoxAnswer::Yes};
    user.session.cmdRedo_Click();
    user.isTold("Changes have been made to the text");
    user.sees("x«»a");
    user.session.cmdRedo_Click();
    user.isTold("Changes have been made to the text");
    user.sees("«»A");
}

TEST(Undo, aNewChangeEndsTheRedoChain) {
    bool undoEnabled = false;
    bool redoEnabled = false;
    cUndo undo({.enableUndo = [&](bool on) { undoEnabled = on; },
                .enableRedo = [&](bool on) { redoEnabled = on; },
                .setStatus = [](const QString &) {},
                .beep = [] {},
                .mayDiscardTyping = [] { return true; }});
    EXPECT_TRUE(undo.Push({"one", 1, 0}));
    EXPECT_FALSE(undo.Push({"one", 2, 0}));
    for (int i = 0; i < 30; ++i) // far beyond any first size of the buffer
        EXPECT_TRUE(undo.Push({QString::number(i), 0, 0}));
    TextState state{"29", 0, 0};
    EXPECT_TRUE(undo.Pull(state));
    EXPECT_EQ(state.text, "28");
    EXPECT_TRUE(redoEnabled);
    EXPECT_TRUE(undo.Push({"new", 0, 0}));
    EXPECT_FALSE(redoEnabled);
    EXPECT_FALSE(undo.Redo(state));
    while (undo.Pull(state)) {
    }
    EXPECT_EQ(state.text, "one");
    EXPECT_EQ(state.selStart, 1);
    EXPECT_TRUE(undoEnabled); // stays on at the bottom, and then says so
}

} // namespace
