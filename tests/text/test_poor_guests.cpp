// SPDX-License-Identifier: MIT
// Every tool is visited by texts that nobody would write, and keeps what it promises about any text.
#include "tests/text/engine.h"
#include "tests/text/operations.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using PoorGuests = Engine;

QStringList guests() {
    QStringList texts = {{},
                         lines(u"|"),
                         lines(u"|||"),
                         lines(u"a|b"),
                         u"a\rb\nc"_s,
                         QString(QChar(0xD800)),
                         u"x"_s + QChar(0xDC00) + u'.',
                         QString(QChar(0)),
                         u" "_s,
                         u"'"_s};
    for (const char16_t *unit : {u"a",   u" ",  u"a\r\n", u".",  u"(",    u"]",  u"'",  u"\"",  u"&#", u"&#1",
                                 u"%41", u"\t", u"\r",    u"\n", u"\r\n", u"a'", u"1.", u"mc-", u"…",  u"i "})
        texts += QString::fromUtf16(unit).repeated(1 + 20000 / QStringView(unit).size());
    return texts;
}

TEST_F(PoorGuests, comeOutOfEveryTool) {
    for (const QString &text : guests()) {
        for (const Operation &operation : operations) {
            SCOPED_TRACE(shown(text.left(10)) + " in " + operation.name);
            const QString once = operation.run(engine, text);
            EXPECT_LE(once.size(), 60 * text.size() + 60);
        }
    }
}

TEST_F(PoorGuests, keepTheLaws) {
    for (const QString &text : guests()) {
        for (const Law &law : laws)
            EXPECT_TRUE(law.holds(engine, text)) << shown(text.left(10)) << " in " << law.name;
    }
}

} // namespace
