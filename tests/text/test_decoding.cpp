// SPDX-License-Identifier: MIT
#include "base/failure.h"
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

using Decoding = Engine;

struct Pair {
    const char16_t *text;
    const char16_t *expected;
};

TEST_F(Decoding, plainAndCurly) {
    EXPECT_EQ(engine.PlainChars(u"‚‘’“”„…´–—é"), QStringLiteral("'''\"\"\"...'--é"));
    for (const Pair &c : {Pair{u"don't", u"don’t"},
                          {u"'word' dogs' \"x\"", u"‘word’ dogs’ “x”"},
                          {u"a---b", u"a—b"},
                          {u"a--b-----.....", u"a–b—–….."}})
        EXPECT_EQ(engine.CurlyQuotes(lines(c.text)), lines(c.expected));
    EXPECT_TRUE(said.warnings.isEmpty());
    EXPECT_EQ(engine.CurlyQuotes(u"\"a 'b"), QStringLiteral("“a ‘b"));
    EXPECT_EQ(said.titles, QStringList(QStringLiteral("Curly Quotes")));
    EXPECT_EQ(said.warnings.value(0), lines(u"There appears to be a closing quotes (\") missing|"
                                            u"There appears to be a closing single quote (') missing"));
}

TEST_F(Decoding, urls) {
    for (const Pair &c : {Pair{u"%4", u"%4"},
                          {u"100%", u"100%"},
                          {u"%zz", u"%zz"},
                          {u"%41%42", u"AB"},
                          {u"a%2", u"a%2"},
                          {u"%2541+%e9%C3%A9%80", u"%41+éÃ©€"},
                          {u"%%41%4", u"%A%4"}})
        EXPECT_EQ(engine.URLdecode(lines(c.text)), lines(c.expected));
}

TEST_F(Decoding, entities) {
    for (const Pair &c : {
             Pair{u"&#65;&#233;&#65281;&#150;", u"Aé!–"},
             {u"&#8212;&#65;", u"65;"}, // none is decoded behind one without a character
             {u"&#a&#65;", u"aA"},
             {u"&#x41;", u"xA"},
             {u"&#xE9;&#X0041;", u"éX00A"},
             {u"ab&#xFFFFF;c", u"ac"},
             {u"&#xFFFFF;", u""},
             {u"&#65;066;b", u"ABb"},
             {u"&#655", u"A"}, // without a semicolon the last digit goes
             {u"&#6", u"6"},
             {u"&#6ab;", u"6ab;"},
             {u"&amp;lt;&AMP;amp;&amp;quot;&QUOT;", u"<&amp;&quot;\""},
             {u"&nbsp;&Pound;&euro;&cent;&copy;&trade;&reg;&bull;&mdash;&ndash;", u"\u00A0£€¢©™®•—–"},
             {u"&rsquo;&lsquo;&ldquo;&rdquo;&sbquo;&bdquo;&gt;&apos;", u"’‘“”‚„>'"},
             {u"&dagger;&Dagger;&DAGGER;&nope;&lt", u"††&DAGGER;&nope;&lt"},
         })
        EXPECT_EQ(engine.HTMLdecode(lines(c.text)), lines(c.expected));
    EXPECT_EQ(engine.HTMLdecode(u"&#x;"), QString(QChar(0)));
    EXPECT_THROW((void)engine.HTMLdecode(u"&#xFFFFFFFF;"), Failure);
    EXPECT_THROW((void)engine.HTMLdecode(QStringLiteral("&#") + QString(32769, u'1')), Failure);
}

TEST_F(Decoding, mailQuotes) {
    EXPECT_EQ(engine.Stripmail(u"> > quoted\r\n|>x\r\n >y\r\n>|"), QStringLiteral("quoted\r\nx\r\n >y\r\n"));
}

} // namespace
