// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

using CaseTools = Engine;

struct Pair {
    const char16_t *text;
    const char16_t *expected;
};

TEST_F(CaseTools, reverseCase) {
    for (const Pair &c : {Pair{u"aB1", u"Ab1"}, {u"éÉß", u"Ééß"}, {u"", u""}})
        EXPECT_EQ(engine.ReverseCase(lines(c.text)), lines(c.expected));
    EXPECT_EQ(said.status, QStringLiteral("0 characters: reverse case"));
}

TEST_F(CaseTools, sentenceCase) {
    for (const Pair &c : {
             Pair{u"HELLO WORLD. and i am here.", u"Hello world. And I am here."},
             {u"version 1.2 is out. see a.b.c. it works", u"Version 1.2 is out. See a.b.c. it works"},
             {u"one|two", u"One|two"},
             {u"so do i", u"So do i"},
             {u"so do i think", u"So do I think"},
             {u"so do i. yes, I'M \"in\"", u"So do i. Yes, I'm \"in\""},
             {u"  \"1a b", u"  \"1A b"},
             {u"see b.com! (e.g. this) wait... no? yes", u"See b.com! (e.g. this) wait... no? Yes"},
             {u"the ÉTÉ. ça va", u"The été. Ça va"},
         })
        EXPECT_EQ(engine.SentenceCase(lines(c.text)), lines(c.expected));
    EXPECT_EQ(said.status, QStringLiteral("Selection: sentence case"));
}

TEST_F(CaseTools, capitalise) {
    EXPECT_EQ(engine.Capitalise(u"a NASA man. i'm: here. b.com is", false),
              QStringLiteral("A NASA man. I'm: here. B.com is"));
    EXPECT_EQ(engine.Capitalise(u"one: two", true), QStringLiteral("One: Two"));
    EXPECT_EQ(engine.Capitalise(u"e.g. this", true), QStringLiteral("E.g. this"));
    EXPECT_EQ(said.status, QStringLiteral("Selection: sentences capitalised"));
}

TEST_F(CaseTools, initialCaps) {
    for (const Pair &c : {
             Pair{u"the mcdonald's o'brien re-elect non-stop", u"The McDonald's O'Brien Re-elect Non-stop"},
             {u"the McDonald", u"The McDonald"},
             {u"ante-room under-age a-b -c", u"Ante-Room Under-Age A-B -C"},
             {u"DON'T 'quote' dogs' bones", u"Don't 'Quote' Dogs' Bones"},
         })
        EXPECT_EQ(engine.InitialCaps(lines(c.text), 1, lines(c.text).size()), lines(c.expected));
    EXPECT_EQ(said.status, QStringLiteral("0 characters: initial capitals"));
    EXPECT_EQ(engine.InitialCaps(u"one two", 2, 3), QStringLiteral("ne "));
    EXPECT_EQ(engine.InitialCaps(u"one two", 5, 99), QStringLiteral("Two"));
}

TEST_F(CaseTools, titleCase) {
    for (const Pair &c : {
             Pair{u"the lord of the rings", u"The Lord of the Rings"},
             {u"what it is for", u"What It Is For"},
             {u"NASA hELLO", u"NASA Hello"},
             {u"with and without you", u"With and Without You"},
             {u"me with & WITHOUT you", u"Me With & Without You"},
             {u"a re-run of ante-room: the end", u"A Re-run of Ante-Room: The End"},
             {u"o'brien at b.com and README.txt", u"O'Brien at b.com and README.txt"},
             {u" 12 ", u" 12 "},
         })
        EXPECT_EQ(engine.TitleCase(lines(c.text), 0, lines(c.text).size()), lines(c.expected));
    // Further on in a text the test for the last word comes out true for most words.
    EXPECT_EQ(engine.TitleCase(u"By me: lord of the rings", 7, 17), QStringLiteral("Lord Of The Rings"));
}

TEST_F(CaseTools, titleMustBeginWithAWord) {
    EXPECT_EQ(engine.TitleCase(u"lord of", 2, 5), QStringLiteral("rd of"));
    EXPECT_EQ(said.warnings, QStringList(QStringLiteral("Please select the whole title")));
    EXPECT_TRUE(said.status.isEmpty());
    // A start behind the first character is not looked at, and an apostrophe needs three characters before
    // it.
    EXPECT_EQ(engine.TitleCase(u"lord of", 1, 6), QStringLiteral("Ord Of"));
    EXPECT_EQ(engine.TitleCase(u"o'brien", 2, 5), QStringLiteral("Brien"));
    EXPECT_EQ(said.warnings.size(), 1);
    EXPECT_EQ(engine.TitleCase(u"mo'brien", 3, 5), QStringLiteral("brien"));
    EXPECT_EQ(said.warnings.size(), 2);
}

} // namespace
