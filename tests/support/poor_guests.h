// SPDX-License-Identifier: MIT
// Texts that nobody would write.
#pragma once

#include <QStringList>

namespace tolvo::test {

[[nodiscard]] inline QStringList guests() {
    using namespace Qt::StringLiterals;
    QStringList texts = {{},
                         u"\r\n"_s,
                         u"\r\n\r\n\r\n"_s,
                         u"a\r\nb"_s,
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

} // namespace tolvo::test
