// SPDX-License-Identifier: MIT
#include "base/text_encoding.h"
#include "base/utf8.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace tolvo;

namespace {

TEST(TextEncoding, isSeenFromTheBytes) {
    const std::pair<QByteArray, std::optional<QString>> rows[] = {
        {"", u""_s},
        {"plain", u"plain"_s},
        {"caf\xC3\xA9 \xF0\x9F\x98\x80", u"caf\u00E9 \U0001F600"_s},
        {"\xEF\xBB\xBF"
         "caf\xC3\xA9",
         u"caf\u00E9"_s},
        {"caf\xE9 \x93quoted\x94", u"caf\u00E9 \u201Cquoted\u201D"_s},
        {"\xC3", u"\u00C3"_s}, // ends within a character of UTF-8
        {QByteArray("\xFF\xFE"
                    "a\0\xE9\0\x3D\xD8\0\xDE",
                    10),
         u"a\u00E9\U0001F600"_s},
        {QByteArray("\xFE\xFF\0a\0\xE9", 6), u"a\u00E9"_s},
        {QByteArray("a\0b\0\r\0\n\0", 8), u"ab\r\n"_s},
        {QByteArray("\0a\0b", 4), u"ab"_s},
        {QByteArray("\xFF\xFE"
                    "a\0\0\xD8",
                    6),
         u"a"_s + QChar(0xD800)}, // half a pair
        {QByteArray("ab\0c", 4), {}},
        {QByteArray("\0\0\0\0", 4), {}},
        {QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR", 16), {}},
        {"\x1B[1mbold\x1B[0m\ttab\fpage", u"\x1B[1mbold\x1B[0m\ttab\fpage"_s},
        {"\x01\x02\x03\x04", {}},
    };
    for (const auto &[bytes, text] : rows)
        EXPECT_EQ(decodedText(bytes), text) << bytes.toHex(' ').toStdString();
}

TEST(Utf8, HasAQuestionMarkForHalfAPair) {
    const QString pair = u"\U0001F600"_s;
    const struct {
        QString text;
        QByteArray bytes;
    } cases[] = {{u"aé"_s + pair, "a\xC3\xA9\xF0\x9F\x98\x80"},
                 {pair + pair[0] + pair, "\xF0\x9F\x98\x80?\xF0\x9F\x98\x80"},
                 {pair[1] + pair + pair[0], "?\xF0\x9F\x98\x80?"}};
    for (const auto &[text, bytes] : cases)
        EXPECT_EQ(utf8Of(text), bytes);
}

} // namespace
