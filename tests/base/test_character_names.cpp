// SPDX-License-Identifier: MIT
#include "base/character_names.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(CharacterNames, areThoseOfAllThatAReaderTakesForOneCharacter) {
    struct Row {
        QString text;
        qsizetype position;
        QStringList names;
    };
    const Row rows[] = {
        {"ab", 1, {"U+0062 LATIN SMALL LETTER B"}},
        {"ab", 2, {}},
        {"e\u0301x", 0, {"U+0065 LATIN SMALL LETTER E", "U+0301 COMBINING ACUTE ACCENT"}},
        {"x\U0001F44B\U0001F3FD",
         1,
         {"U+1F44B WAVING HAND SIGN", "U+1F3FD EMOJI MODIFIER FITZPATRICK TYPE-4"}},
        {"\r\n", 0, {"U+000D <control-000D>", "U+000A <control-000A>"}},
        {QString(QChar(0xD800)) + u'a', 0, {"U+D800 <lead surrogate-D800>"}},
        {"\u200Bx", 0, {"U+200B ZERO WIDTH SPACE"}},
    };
    for (const Row &row : rows) {
        QStringList names;
        for (const char32_t one : characterAt(row.text, row.position))
            names += characterCode(one) + u' ' + characterName(one);
        EXPECT_EQ(names, row.names) << row.text.toStdString();
    }
    EXPECT_LE(characterAt(u'a' + QString(100000, QChar(0x301)), 0).size(), 256) << "marks without end";
}

} // namespace
