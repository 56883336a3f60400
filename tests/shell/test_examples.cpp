// SPDX-License-Identifier: MIT
// The rows of examples.txt, which says what they are.
#include "tests/support/User.h"
#include "tests/support/examples.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

/// One word of a script: what the user does, or with "=" what is seen then. "_" is a blank.
void plays(User &user, const QString &word) {
    const QString rest = QString(word.mid(1)).replace(u'_', u' ');
    if (word.startsWith(u'='))
        user.sees(rest);
    else if (word.startsWith(u'+'))
        user.typesKeys(rest);
    else if (word.startsWith(u'^'))
        user.presses(rest[0].toLatin1());
    else if (word == "Redo^")
        user.presses('Z', ShiftState::Ctrl | ShiftState::Shift);
    else if (word.startsWith(u'@'))
        restore(user.session.txtCurrent(), stateOf(rest)); // another selection
    else if (word.startsWith(u'>'))
        user.pastes(rest);
    else if (word == "Undo")
        user.session.cmdUndo_Click();
    else if (word == "Redo")
        user.session.cmdRedo_Click();
    else if (word == "Wait")
        user.waits(3000);
    else if (word == "Wrap")
        user.session.imgWordwrap_Click();
    else if (word == "Refresh") {
        user.headless.clipboard.text = "new";
        user.session.cmdRefresh_Click();
    } else
        user.runs(word);
}

TEST(Examples, comeOutAsTheFileSays) {
    forEachExample("/tests/shell/examples.txt", [](const QString &section, const QStringList &sides) {
        User user(sides[section.startsWith("Stored") ? 2 : section == "Tools" || section == "Keys" ? 1 : 0]);
        if (section == "Tools") {
            const QString before = user.session.txtCurrent().Text();
            user.runs(sides[0]);
            user.sees(sides[2], sides[3]);
            EXPECT_EQ(user.boxes.said(), QString(sides[4]).replace(u'|', "\r\n"));
            EXPECT_EQ(user.session.bDirty(), before != user.session.txtCurrent().Text());
        } else if (section == "ExtendSelectionToLines") {
            user.session.ExtendSelectionToLines();
            user.sees(sides[1]);
        } else if (section == "Keys") {
            user.presses(sides[0].front().toLatin1());
            user.sees(sides[2]);
            EXPECT_EQ(user.boxes.said(), sides[3]);
        } else if (section == "StoredSettings") {
            user.session.PowerButtonDespatcher(*User::action(sides[0], SettingsFrom::Custom, sides[1]));
            user.sees(sides[3], sides[4]);
            EXPECT_EQ(user.boxes.said(), sides[5]);
        } else if (section == "StoredSearches") {
            user.session.PowerButtonDespatcher(*User::action(sides[0], SettingsFrom::Custom, sides[1]));
            const bool withSelection = sides[3].contains(u'«');
            EXPECT_EQ(withSelection ? pictureOf(user.session.txtCurrent()) : user.session.txtCurrent().Text(),
                      sides[3]);
        } else {
            EXPECT_EQ(section, "Undo");
            for (const QString &word : sides[1].split(u' '))
                plays(user, word);
        }
    });
}

} // namespace
