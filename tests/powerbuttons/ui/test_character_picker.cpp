// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/character_index.h"
#include "powerbuttons/ui/dlgPickCharacter.h"
#include "tests/powerbuttons/ui/modal.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <array>

namespace tolvo {
namespace {

TEST(CharacterIndex, findsByCharacterCodeAndName) {
    struct Case {
        const char16_t *query;
        char32_t found;
        bool first;
    };
    const std::array cases{
        Case{u"\u2192", 0x2192, true},
        Case{u"2192", 0x2192, true},
        Case{u"u+1f600", 0x1F600, true},
        Case{u"0x41", 'A', true},
        Case{u"rightwards  arr", 0x2192, false},
        Case{u"arrow right", 0x2192, false},
        Case{u"mail", 0x2709, false},
        Case{u"tick", 0x2713, false},
        Case{u" black star", 0x2605, false},
    };
    for (const Case &row : cases) {
        const QString query = QString::fromUtf16(row.query);
        const QList<char32_t> found = findCharacters(query, 500);
        EXPECT_TRUE(found.contains(row.found)) << query.toStdString();
        if (row.first) {
            EXPECT_EQ(found.value(0), row.found) << query.toStdString();
        }
    }
    for (const char16_t *query : {u"", u" ", u"110000", u"\x7", u"d800", u"no such thing"})
        EXPECT_TRUE(findCharacters(QString::fromUtf16(query), 500).isEmpty());
    EXPECT_EQ(findCharacters(QStringLiteral("arrow"), 7).size(), 7);
    EXPECT_EQ(characterName(0x2709), QStringLiteral("ENVELOPE"));
    EXPECT_EQ(characterCode(0x1F600), QStringLiteral("U+1F600"));
}

TEST(CharacterIndex, blocksHoldWhatCanBeSeen) {
    const QList<CharacterBlock> blocks = characterBlocks();
    EXPECT_EQ(blocks.first().name, QStringLiteral("Basic Latin"));
    EXPECT_EQ(charactersOf(blocks.first()).size(), 94);
    for (const CharacterBlock &block : blocks)
        EXPECT_FALSE(block.first >= 0xD800 && block.last <= 0xDFFF) << block.name.toStdString();
}

TEST(CharacterPicker, collectsUpToThreeAndRemembersThem) {
    QStringList recent{QStringLiteral("x"), QStringLiteral(u"\u2600")};
    dlgPickCharacter picker(QStringLiteral("DejaVu Sans"), recent);
    picker.show();
    auto &table = child<QTableView>(picker, "tblCharacters");
    EXPECT_EQ(child<QComboBox>(picker, "cmbBlock").currentText(), QStringLiteral("Miscellaneous Symbols"));
    EXPECT_EQ(child<QLabel>(picker, "labCharacter").text(), QStringLiteral("U+2600 BLACK SUN WITH RAYS"));
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Return);
    QTest::keyClick(&table, Qt::Key_Right);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_TRUE(picker.isVisible());
    child<QLineEdit>(picker, "txtFind").setText(QStringLiteral("1F600"));
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&table, Qt::Key_Enter);
    picker.accept();
    EXPECT_EQ(picker.choice().text, QStringLiteral(u"\u2600\u2601\U0001F600"));
    EXPECT_EQ(recent.join(u' '), QStringLiteral(u"\u2600 \u2601 \U0001F600 x"));
}

TEST(CharacterPicker, staysOpenWithoutAnything) {
    QStringList recent;
    dlgPickCharacter picker(QStringLiteral("DejaVu Sans"), recent);
    picker.show();
    child<QLineEdit>(picker, "txtFind").setText(QStringLiteral("no such thing"));
    picker.accept();
    EXPECT_TRUE(picker.isVisible());
}

} // namespace
} // namespace tolvo
