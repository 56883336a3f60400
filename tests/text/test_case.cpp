// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using CaseTools = Engine;

TEST_F(CaseTools, reverseCase) {
    expectExamples([this](QStringView text) { return engine.ReverseCase(text); },
                   {u"aB1→Ab1", u"éÉß→Ééß", u"→"});
    EXPECT_EQ(said.status, u"0 characters: reverse case"_s);
}

TEST_F(CaseTools, sentenceCase) {
    expectExamples([this](QStringView text) { return engine.SentenceCase(text); },
                   {u"HELLO WORLD. and i am here.→Hello world. And I am here.",
                    u"version 1.2 is out. see a.b.c. it works→Version 1.2 is out. See a.b.c. it works",
                    u"one|two→One|two", u"so do i→So do i", u"so do i think→So do I think",
                    u"so do i. yes, I'M \"in\"→So do i. Yes, I'm \"in\"", u"  \"1a b→  \"1A b",
                    u"see b.com! (e.g. this) wait... no? yes→See b.com! (e.g. this) wait... no? Yes",
                    u"the ÉTÉ. ça va→The été. Ça va"});
    EXPECT_EQ(said.status, u"Selection: sentence case"_s);
}

TEST_F(CaseTools, capitalise) {
    EXPECT_EQ(engine.Capitalise(u"a NASA man. i'm: here. b.com is", false),
              u"A NASA man. I'm: here. B.com is"_s);
    EXPECT_EQ(engine.Capitalise(u"one: two", true), u"One: Two"_s);
    EXPECT_EQ(engine.Capitalise(u"e.g. this", true), u"E.g. this"_s);
    EXPECT_EQ(said.status, u"Selection: sentences capitalised"_s);
}

TEST_F(CaseTools, initialCaps) {
    expectExamples([this](QStringView text) { return engine.InitialCaps(text, 1, text.size()); },
                   {u"the mcdonald's o'brien re-elect non-stop→The McDonald's O'Brien Re-elect Non-stop",
                    u"the McDonald→The McDonald", u"ante-room under-age a-b -c→Ante-Room Under-Age A-B -C",
                    u"DON'T 'quote' dogs' bones→Don't 'Quote' Dogs' Bones"});
    EXPECT_EQ(said.status, u"0 characters: initial capitals"_s);
    EXPECT_EQ(engine.InitialCaps(u"one two", 2, 3), u"ne "_s);
    EXPECT_EQ(engine.InitialCaps(u"one two", 5, 99), u"Two"_s);
}

TEST_F(CaseTools, titleCase) {
    expectExamples([this](QStringView text) { return engine.TitleCase(text, 0, text.size()); },
                   {u"the lord of the rings→The Lord of the Rings", u"what it is for→What It Is For",
                    u"NASA hELLO→NASA Hello", u"with and without you→With and Without You",
                    u"me with & WITHOUT you→Me With & Without You",
                    u"a re-run of ante-room: the end→A Re-run of Ante-Room: The End",
                    u"o'brien at b.com and README.txt→O'Brien at b.com and README.txt", u" 12 → 12 "});
    // Further on in a text the test for the last word comes out true for most words.
    EXPECT_EQ(engine.TitleCase(u"By me: lord of the rings", 7, 17), u"Lord Of The Rings"_s);
}

TEST_F(CaseTools, titleMustBeginWithAWord) {
    EXPECT_EQ(engine.TitleCase(u"lord of", 2, 5), u"rd of"_s);
    EXPECT_EQ(said.warnings, QStringList(u"Please select the whole title"_s));
    EXPECT_TRUE(said.status.isEmpty());
    // A start behind the first character is not looked at, and an apostrophe needs three characters before
    // it.
    EXPECT_EQ(engine.TitleCase(u"lord of", 1, 6), u"Ord Of"_s);
    EXPECT_EQ(engine.TitleCase(u"o'brien", 2, 5), u"Brien"_s);
    EXPECT_EQ(said.warnings.size(), 1);
    EXPECT_EQ(engine.TitleCase(u"mo'brien", 3, 5), u"brien"_s);
    EXPECT_EQ(said.warnings.size(), 2);
}

} // namespace
