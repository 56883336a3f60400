// SPDX-License-Identifier: MIT
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using Decoding = Engine;

TEST_F(Decoding, plainAndCurly) {
    EXPECT_EQ(engine.CurlyQuotes(u"\"a 'b"), u"“a ‘b"_s);
    EXPECT_EQ(said.titles, QStringList(u"Curly Quotes"_s));
    EXPECT_EQ(said.warnings.value(0), lines(u"There appears to be a closing quotes (\") missing|"
                                            u"There appears to be a closing single quote (') missing"));
}

TEST_F(Decoding, entities) {
    EXPECT_EQ(engine.HTMLdecode(u"&#x;"), QString(QChar(0)));
    for (const QString &tooLong : {u"&#xFFFFFFFF;"_s, u"&#"_s + QString(32769, u'1')})
        expectFailure(failureNumber::overflow, [&] { (void)engine.HTMLdecode(tooLong); });
}

TEST_F(Decoding, mailQuotes) {
    EXPECT_EQ(engine.Stripmail(u"> > quoted\r\n|>x\r\n >y\r\n>|"), u"quoted\r\nx\r\n >y\r\n"_s);
}

} // namespace
