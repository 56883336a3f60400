// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using Decoding = Engine;

TEST_F(Decoding, plainAndCurly) {
    EXPECT_EQ(engine.PlainChars(u"‚‘’“”„…´–—é"), u"'''\"\"\"...'--é"_s);
    expectExamples(
        [this](QStringView text) { return engine.CurlyQuotes(text); },
        {u"don't→don’t", u"'word' dogs' \"x\"→‘word’ dogs’ “x”", u"a---b→a—b", u"a--b-----.....→a–b—–….."});
    EXPECT_TRUE(said.warnings.isEmpty());
    EXPECT_EQ(engine.CurlyQuotes(u"\"a 'b"), u"“a ‘b"_s);
    EXPECT_EQ(said.titles, QStringList(u"Curly Quotes"_s));
    EXPECT_EQ(said.warnings.value(0), lines(u"There appears to be a closing quotes (\") missing|"
                                            u"There appears to be a closing single quote (') missing"));
}

TEST_F(Decoding, urls) {
    expectExamples([this](QStringView text) { return engine.URLdecode(text); },
                   {u"%4→%4", u"100%→100%", u"%zz→%zz", u"%41%42→AB", u"a%2→a%2",
                    u"%2541+%e9%C3%A9%80→%41+éÃ©€", u"%%41%4→%A%4"});
}

TEST_F(Decoding, entities) {
    expectExamples([this](QStringView text) { return engine.HTMLdecode(text); },
                   {u"&#65;&#233;&#65281;&#150;→Aé!–",
                    u"&#8212;&#65;→65;", // none is decoded behind one without a character
                    u"&#a&#65;→aA", u"&#x41;→xA", u"&#xE9;&#X0041;→éX00A", u"ab&#xFFFFF;c→ac", u"&#xFFFFF;→",
                    u"&#65;066;b→ABb",
                    u"&#655→A", // without a semicolon the last digit goes
                    u"&#6→6", u"&#6ab;→6ab;", u"&amp;lt;&AMP;amp;&amp;quot;&QUOT;→<&amp;&quot;\"",
                    u"&nbsp;&Pound;&euro;&cent;&copy;&trade;&reg;&bull;&mdash;&ndash;→\u00A0£€¢©™®•—–",
                    u"&rsquo;&lsquo;&ldquo;&rdquo;&sbquo;&bdquo;&gt;&apos;→’‘“”‚„>'",
                    u"&dagger;&Dagger;&DAGGER;&nope;&lt→††&DAGGER;&nope;&lt"});
    EXPECT_EQ(engine.HTMLdecode(u"&#x;"), QString(QChar(0)));
    for (const QString &tooLong : {u"&#xFFFFFFFF;"_s, u"&#"_s + QString(32769, u'1')})
        expectFailure(failureNumber::overflow, [&] { (void)engine.HTMLdecode(tooLong); });
}

TEST_F(Decoding, mailQuotes) {
    EXPECT_EQ(engine.Stripmail(u"> > quoted\r\n|>x\r\n >y\r\n>|"), u"quoted\r\nx\r\n >y\r\n"_s);
}

} // namespace
