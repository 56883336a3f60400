// SPDX-License-Identifier: MIT
// Texts that nobody would write visit every tool: nothing fails, and undo gives the text back.
#include "tests/support/User.h"
#include "tests/support/operations.h"
#include "tests/support/poor_guests.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

class PoorGuests : public ::testing::TestWithParam<const char16_t *> {};

TEST_P(PoorGuests, comeOutOfEveryTool) {
    const TextState guest = stateOf(QString::fromUtf16(GetParam()));
    User user;
    for (const ToolRow &row : toolTable()) {
        SCOPED_TRACE(QString::fromUtf16(row.token).toStdString());
        user.startsWith(QString::fromUtf16(GetParam()));
        user.runsAgain(QString::fromUtf16(row.token));
        for (const Box &box : user.boxes.take()) // a tool may refuse such a text, but not fail on it
            EXPECT_FALSE(box.text.startsWith("Sorry")) << box.text.toStdString();
        if (user.session.txtCurrent().Text() != guest.text)
            user.session.cmdUndo_Click();
        EXPECT_EQ(user.session.txtCurrent().Text(), guest.text);
    }
}

TEST(PoorGuestsAtLength, comeOutOfEveryTextOperation) {
    SilentHost host;
    const cTextMethods engine(host, [](const QString &extension) { return extension == "txt"_L1; });
    const std::vector<Operation> all = operations();
    for (const QString &text : guests()) {
        for (const Operation &operation : all) {
            SCOPED_TRACE(shown(text.left(10)) + " in " + operation.name);
            EXPECT_LE(operation.run(engine, text).size(), 60 * text.size() + 60);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Shell, PoorGuests,
                         ::testing::Values(u"", u"|", u"«|»", u"|||", u"a|b", u"«a|b»", u"a|b|", u"a\rb\nc",
                                           u"«\r»", u"endless", u"«endless»", u"\U0001F600", u"«\U0001F600»",
                                           u"x\xD83D", u"\xDE00x", u"a«»", u"«a, b|c»", u"\\[\\]",
                                           u"\x00A0 \t "));

} // namespace
