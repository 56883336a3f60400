// SPDX-License-Identifier: MIT
// What the status bar says about the text, and the sizes in which it is shown.
#include "shell/text_facts.h"
#include "shell/zoom_levels.h"
#include "tests/support/User.h"
#include "tests/support/pictures.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

QString said(const TextFacts &facts) {
    return QStringList{selectionText(facts), placeText(facts), lengthText(facts)}.join(u'#');
}

TEST(TextFacts, sayWhereTheSelectionIs) {
    const std::pair<const char *, const char *> rows[] = {
        {"«»", "#Ln 1, Col 1#0 / 65,535"},
        {"ab|c«»d|", "#Ln 2, Col 2#8 / 65,535"},
        {"ab|cd|«»", "#Ln 3, Col 1#8 / 65,535"},
        {"a«b|cd|»", "7 selected#Ln 1, Col 2#8 / 65,535"},
        {"\xF0\x9F\x98\x80«»", "#Ln 1, Col 3#2 / 65,535"},
    };
    for (const auto &[picture, expected] : rows) {
        const User user(QString::fromUtf8(picture));
        EXPECT_EQ(said(textFacts(user.session.oTextMethods, user.session.txtCurrent())), expected) << picture;
    }
    EXPECT_EQ(said({.selected = 12345, .line = 1000, .column = 2000, .length = 65535}),
              "12,345 selected#Ln 1,000, Col 2,000#65,535 / 65,535");
}

TEST(TextFacts, warnBeforeTheTextIsFull) {
    const std::tuple<int, int, Fill, bool> rows[] = {
        {0, 65535, Fill::Roomy, false},   {58981, 65535, Fill::Roomy, false},
        {58982, 65535, Fill::Near, true}, {64879, 65535, Fill::Near, true},
        {64880, 65535, Fill::Full, true}, {65535, 65535, Fill::Full, true},
        {65536, 65535, Fill::Full, true},
    };
    for (const auto &[length, capacity, fill, tells] : rows) {
        const TextFacts facts{.length = length, .capacity = capacity};
        EXPECT_EQ(fillOf(facts), fill) << length;
        EXPECT_EQ(lengthTip(facts).contains("Room for"), tells) << length;
    }
    EXPECT_TRUE(lengthTip({.length = 65536}).endsWith("Room for 0 more"));
}

TEST(TextFacts, findTheStartOfALine) {
    const QString text = "ab\r\n\r\ncd\ne\r\n";
    const std::pair<int, std::optional<int>> rows[] = {{-1, {}}, {0, {}}, {1, 0}, {2, 4},
                                                       {3, 6},   {4, 12}, {5, {}}};
    for (const auto &[line, start] : rows)
        EXPECT_EQ(placeOfLine(text, line), start) << line;
    EXPECT_EQ(lineCount(text), 4);
    EXPECT_EQ(lineCount({}), 1);
}

TEST(Zoom, goesFromSizeToSize) {
    const std::tuple<int, int, int> rows[] = {{100, 1, 110},  {100, -1, 90}, {105, 1, 110}, {105, -1, 100},
                                              {100, 3, 150},  {400, 1, 400}, {50, -1, 50},  {50, 100, 400},
                                              {400, -99, 50}, {120, 0, 120}};
    for (const auto &[from, steps, to] : rows)
        EXPECT_EQ(zoomed(from, steps), to) << from << ' ' << steps;
}

TEST(Hint, tellsOfAToolThatLeftTheTextAlone) {
    struct Row {
        const char *token;
        const char *text;
        const char *hint;
    };
    const Row rows[] = {
        {"ccUPP", "ab", ""},    {"ccUPP", "AB", "Nothing changed"}, {"ccUPP", "a«B»", "Nothing changed"},
        {"foBOTH", "a  b", ""}, {"foBOTH", "a b  |c", ""},          {"foBOTH", "a b", "Nothing changed"},
    };
    for (const Row &row : rows) {
        User user(QString::fromUtf8(row.text));
        user.session.imgFavourites_Click(row.token);
        EXPECT_EQ(user.hint, row.hint) << row.token << ' ' << row.text;
    }
}

TEST(Hint, tellsOfAPowerButtonThatLeftTheTextAlone) {
    const std::pair<QStringList, const char *> rows[] = {
        {{"ccUPP", "ccLOW"}, "Nothing changed"}, // there and back again
        {{"ccUPP"}, "(none)"},
        {{"chSTAT"}, "(none)"}, // is not expected to change anything
        {{"chSTAT", "ccLOW"}, "Nothing changed"},
    };
    for (const auto &[tokens, hint] : rows) {
        User user("a b");
        QList<std::shared_ptr<CAction>> actions;
        for (const QString &token : tokens)
            actions += User::action(token);
        user.defines(1, actions);
        user.hint = "(none)";
        user.session.imgPower_Click(0);
        EXPECT_EQ(user.hint, hint) << tokens.join(' ').toStdString();
    }
}

TEST(TextBefore, isThatBeforeTheLastRunThatChangedAnything) {
    User user("one t«w»o");
    EXPECT_FALSE(user.session.lastChange());
    user.runs("ccUPP");
    user.runs("ccUPP"); // changes nothing
    user.types("x");
    ASSERT_TRUE(user.session.lastChange());
    EXPECT_EQ(user.session.lastChange()->name, "UPPER CASE");
    EXPECT_EQ(user.session.lastChange()->before.text, "one two");
    EXPECT_EQ(user.session.lastChange()->before.selStart, 5);
    user.startsWith("a  b ");
    user.session.imgFavourites_Click("foBOTH");
    EXPECT_EQ(user.session.lastChange()->name, "Trim trailing space and single space");
    EXPECT_EQ(user.session.lastChange()->before.text, "a  b ");
    user.defines(2, {User::action("ccUPP"), User::action("foTRM")});
    user.session.imgPower_Click(1);
    EXPECT_EQ(user.session.lastChange()->before.text, "a b") << "one run is one change";
}

} // namespace
