// SPDX-License-Identifier: MIT
// A session from the clipboard to the clipboard.
#include "tests/support/User.h"

using namespace tolvo;
using namespace tolvo::test;
using enum SettingsFrom;

namespace {

TEST(Session, copyAndCloseGivesTheWholeText) {
    User user("one |tw«o»");
    user.runs("ccUPP");
    user.session.cmdClose_Click();
    EXPECT_EQ(user.headless.clipboard.text, "one \r\ntwO");
    EXPECT_EQ(user.headless.sound.beeps, 1);
    EXPECT_FALSE(user.session.bDirty());
    EXPECT_TRUE(user.session.bSessionOver);
    EXPECT_EQ(user.opened, QStringList("(hidden)"));
}

TEST(Session, cancelAsksOnlyAfterAChange) {
    const struct {
        bool changed;
        CloseAnswer answer;
        bool over;
        const char16_t *clipboard;
    } cases[] = {{false, CloseAnswer::Cancel, true, u"a"},
                 {true, CloseAnswer::Cancel, false, u"a"},
                 {true, CloseAnswer::Discard, true, u"a"},
                 {true, CloseAnswer::CopyAndClose, true, u"A"}};
    for (const bool closeBox : {false, true}) {
        for (const auto &row : cases) {
            User user("a");
            user.runs("foTRA"); // leaves the text as it was
            if (row.changed)
                user.runs("ccUPP");
            user.closeAnswer = row.answer;
            if (closeBox)
                EXPECT_EQ(user.session.queryUnload(), row.over);
            else
                user.session.cmdCancel_Click();
            EXPECT_EQ(user.session.bSessionOver, row.over);
            EXPECT_EQ(user.headless.clipboard.text, QString::fromUtf16(row.clipboard));
            EXPECT_EQ(user.opened.contains("Changes have been made to the text"), row.changed);
        }
    }
}

TEST(Session, saysWhenTheClipboardHoldsTooMuch) {
    for (const auto &[length, number] : {std::pair{65534, ""}, {65535, "65,535"}, {1000000, "1,000,000"}}) {
        User user;
        user.headless.clipboard.text = QString(length, u'x');
        user.session.beginWithClipboard();
        if (*number)
            user.isTold(QString("The text on the Clipboard exceeds the number of characters that Tolvo\r\n"
                                "can process (65,535). There are %1 characters.\r\n"
                                "Tolvo has truncated the text. Some characters have been lost.")
                            .arg(number));
        EXPECT_EQ(user.session.txtCurrent().length(), std::min(length, 65535));
        EXPECT_FALSE(user.session.bDirty());
    }
}

QString cutMessage(int length) {
    return QString("The result exceeds the number of characters that Tolvo\r\n"
                   "can process (12). It had %1 characters.\r\n"
                   "Tolvo has truncated the text. Some characters have been lost.\r\n"
                   "Undo takes this back.")
        .arg(length);
}

TEST(Session, saysOnceWhatAToolLostToTheCapacity) {
    const QString spaces = "RadioButton=1, Spaces=3";
    const QString nest = "PowerButton=2";
    const QString all = "Mode=1, Find=a, Replace=bbbb, ReplaceAll=1";
    const struct {
        const char *what;
        const char16_t *before;
        QList<std::shared_ptr<CAction>> actions;
        const char16_t *after;
        int length;
    } cases[] = {
        {"fits", u"a|b", {User::action("foIND", Custom, spaces)}, u"«»   a|   b", 0},
        {"indent", u"ab|cd", {User::action("foIND", Custom, spaces)}, u"«»   ab|   cd", 0},
        {"whole", u"abc|cd|e", {User::action("foIND", Custom, spaces)}, u"«»   abc|   c", 19},
        {"tabs", u"a\tb|\tcd", {User::action("foT2S")}, u"«»a       b| ", 21},
        {"middle", u"«a|b»|123456", {User::action("foIND", Custom, spaces)}, u"«   a»|123456", 18},
        {"paste", u"12«3»45678", {User::action("pbPST")}, u"12«pastE»45678", 0},
        {"paste cut", u"12«3»4567890", {User::action("pbPST")}, u"12«pas»4567890", 14},
        {"replace all", u"aaaaxEND", {User::action("edREP", Custom, all)}, u"«»bbbbbbbbbbbb", 17},
        {"run",
         u"abc|cd|e",
         {User::action("foIND", Custom, spaces), User::action("pbPBT", Custom, nest), User::action("ccUPP")},
         u"«»      ABC| ",
         19},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.what);
        User user(QString::fromUtf16(row.before));
        user.headless.clipboard.text = "pastE";
        user.headless.txtText1.setCapacity(12);
        user.defines(1, row.actions);
        user.defines(2, {User::action("foIND", Custom, spaces)});
        user.session.imgPower_Click(0);
        user.sees(QString::fromUtf16(row.after));
        if (row.length > 0)
            user.isTold(cutMessage(row.length));
    }
}

TEST(Session, leavesAllAsItIsWhenTheClipboardDoesNotAnswer) {
    User user("ol|d «te»xt");
    user.types("x");
    user.headless.clipboard.answers = false;
    for (const auto &tries : std::initializer_list<std::function<void()>>{
             [&] { user.session.cmdRefresh_Click(); }, [&] { user.runs("pbPST"); },
             [&] { EXPECT_FALSE(user.session.mayPaste()); }}) {
        user.session.setStatus({});
        tries();
        user.sees("ol|d x«»xt", "The clipboard did not answer");
        EXPECT_TRUE(user.session.bDirty());
    }
    User late("");
    late.headless.clipboard.answers = false;
    late.session.beginWithClipboard();
    late.sees("«»", "The clipboard did not answer");
    EXPECT_FALSE(late.session.bDirty());
}

TEST(Session, pasteIsRefusedAtTheLimit) {
    User user(u'«' + QString(60000, u'x') + u'»');
    user.headless.clipboard.text = QString(5534, u'y');
    EXPECT_TRUE(user.session.mayPaste());
    user.headless.clipboard.text += u'y';
    EXPECT_FALSE(user.session.mayPaste()); // the selection is not subtracted
    user.isTold("You cannot paste this text.\r\n\r\nThe current text (60,000 characters) plus what is "
                "on the clipboard\r\nexceeds the number of characters that Tolvo can process "
                "(65,535).\r\nThere are 5,535 characters on the clipboard.");
}

TEST(Session, wordWrapMovesTheTextAndIsNoChange) {
    User user("one |t«w»o");
    user.setTextFont(false, {"Serif", 20, true});
    user.session.imgWordwrap_Click();
    user.sees("one |t«w»o", "Word wrap now ON");
    EXPECT_EQ(&user.session.txtCurrent(), &user.headless.txtTextWW);
    EXPECT_EQ(user.headless.txtText1.Text(), QString());
    EXPECT_EQ(user.textFont(true), (Font{"Serif", 10})); // the name alone travels
    EXPECT_EQ(user.store.GetSetting("Tolvo", "Preferences", "Wordwrap"), "1");
    user.session.imgWordwrap_Click();
    user.sees("one |t«w»o", "Word wrap now OFF");
    EXPECT_FALSE(user.session.bDirty());
    user.types("x");
    EXPECT_TRUE(user.session.bDirty());
}

TEST(Session, rightClickOnOptionsSwapsTheFonts) {
    User user;
    user.session.aFonts = {Font{"P", 9}, Font{"F", 8}};
    user.session.bRightButton = true;
    for (const auto &[font, stored] : {std::pair{u"F", u"0"}, {u"P", u"1"}}) {
        user.session.imgOptions_Click();
        EXPECT_EQ(user.session.currentFont().name, QString::fromUtf16(font));
        EXPECT_EQ(user.store.GetSetting("Tolvo", "Preferences", "FontUseProp"), QString::fromUtf16(stored));
    }
    EXPECT_TRUE(user.opened.isEmpty());
    user.session.bRightButton = false;
    user.session.imgOptions_Click();
    user.session.imgAbout_Click();
    EXPECT_EQ(user.opened.join(u'|'), "Options|About");
    user.session.imgHelp_Click();
    user.isTold("Help is not implemented yet");
}

} // namespace
