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
    EXPECT_EQ(findCharacters("arrow", 7).size(), 7);
    EXPECT_EQ(characterName(0x2709), "ENVELOPE");
    EXPECT_EQ(characterCode(0x1F600), "U+1F600");
}

TEST(CharacterPicker, collectsUpToThreeAndRemembersThem) {
    QStringList recent{"x", u"\u2600"_qs};
    dlgPickCharacter picker("DejaVu Sans", recent);
    picker.show();
    auto &table = child<QTableView>(picker, "tblCharacters");
    EXPECT_EQ(child<QComboBox>(picker, "cmbBlock").currentText(), "Miscellaneous Symbols");
    EXPECT_EQ(child<QLabel>(picker, "labCharacter").text(), "U+2600 BLACK SUN WITH RAYS");
    table.setFocus();
    QTest::keyClick(&table, Qt::Key_Return);
    QTest::keyClick(&table, Qt::Key_Right);
    QTest::keyClick(&table, Qt::Key_Space);
    EXPECT_TRUE(picker.isVisible());
    child<QLineEdit>(picker, "txtFind").setText("1F600");
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&table, Qt::Key_Enter);
    picker.accept();
    EXPECT_EQ(picker.choice().text, u"\u2600\u2601\U0001F600"_qs);
    EXPECT_EQ(recent.join(u' '), u"\u2600 \u2601 \U0001F600 x"_qs);
}

} // namespace
} // namespace tolvo
