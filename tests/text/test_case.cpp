// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using CaseTools = Engine;

TEST_F(CaseTools, sayWhatTheyDid) {
    (void)engine.ReverseCase(u"");
    EXPECT_EQ(said.status, u"0 characters: reverse case"_s);
    (void)engine.SentenceCase(u"");
    EXPECT_EQ(said.status, u"Selection: sentence case"_s);
    (void)engine.Capitalise(u"", true);
    EXPECT_EQ(said.status, u"Selection: sentences capitalised"_s);
    (void)engine.InitialCaps(u"", 1, 0);
    EXPECT_EQ(said.status, u"0 characters: initial capitals"_s);
}

TEST_F(CaseTools, takePartsOfTexts) {
    EXPECT_EQ(engine.Capitalise(u"one: two", true), u"One: Two"_s);
    EXPECT_EQ(engine.Capitalise(u"e.g. this", true), u"E.g. this"_s);
    EXPECT_EQ(engine.InitialCaps(u"one two", 2, 3), u"ne "_s);
    EXPECT_EQ(engine.InitialCaps(u"one two", 5, 99), u"Two"_s);
}

TEST_F(CaseTools, titleMustBeginWithAWord) {
    EXPECT_EQ(engine.TitleCase(u"lord of", 2, 5), u"rd of"_s);
    EXPECT_EQ(said.warnings, QStringList(u"Please select the whole title"_s));
    EXPECT_TRUE(said.status.isEmpty());
    // A start after the first character is not looked at; an apostrophe needs three characters before it.
    EXPECT_EQ(engine.TitleCase(u"lord of", 1, 6), u"Ord Of"_s);
    EXPECT_EQ(engine.TitleCase(u"o'brien", 2, 5), u"Brien"_s);
    EXPECT_EQ(said.warnings.size(), 1);
    EXPECT_EQ(engine.TitleCase(u"mo'brien", 3, 5), u"brien"_s);
    EXPECT_EQ(said.warnings.size(), 2);
}

} // namespace
