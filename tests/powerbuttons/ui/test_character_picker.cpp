// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/character_index.h"
#include "powerbuttons/ui/dlgPickCharacter.h"
#include "tests/ui/user.h"

#include <QComboBox>
#include <QFontComboBox>
#include <QLabel>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

TEST(CharacterIndex, findsByCharacterCodeAndName) {
    // The query, what is found, and whether it is found first.
    const std::tuple<const char16_t *, char32_t, bool> cases[] = {
        {u"\u2192", 0x2192, true},
        {u"2192", 0x2192, true},
        {u"u+1f600", 0x1F600, true},
        {u"0x41", 'A', true},
        {u"rightwards  arr", 0x2192, false},
        {u"arrow right", 0x2192, false},
        {u"mail", 0x2709, false},
        {u"tick", 0x2713, false},
        {u" black star", 0x2605, false},
    };
    for (const auto &[query, expected, first] : cases) {
        const auto found = findCharacters(QString::fromUtf16(query), 500);
        EXPECT_TRUE(first ? found.startsWith(expected) : found.contains(expected))
            << std::hex << std::uint32_t(expected);
    }
    for (const char16_t *query : {u"", u" ", u"110000", u"\x7", u"d800", u"no such thing"})
        EXPECT_TRUE(findCharacters(QString::fromUtf16(query), 500).isEmpty());
    EXPECT_EQ(findCharacters("arrow", 7).size(), 7);
}

TEST(CharacterPicker, collectsUpToThreeAndRemembersThem) {
    QStringList recent{"x", u"\u2600"_s};
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
    EXPECT_EQ(picker.choice().text, u"\u2600\u2601\U0001F600"_s);
    EXPECT_EQ(recent.join(u' '), u"\u2600 \u2601 \U0001F600 x"_s);
}

TEST(CharacterPicker, takesTheCharacterThatItShows) {
    QStringList recent{"x", "y"};
    dlgPickCharacter picker("DejaVu Sans", recent);
    activate(picker);
    auto &list = child<QTableView>(picker, "tblRecent");
    list.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(child<QLabel>(picker, "labCharacter").text(), "U+2600 BLACK SUN WITH RAYS");
    const QModelIndex first = list.model()->index(0, 0);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(first).center());
    child<QFontComboBox>(picker, "cmbFont").setCurrentFont(QFont("DejaVu Serif"));
    EXPECT_EQ(child<QLabel>(picker, "labCharacter").text(), "U+0078 LATIN SMALL LETTER X");
    picker.accept();
    EXPECT_EQ(picker.choice().text, "x");
}

} // namespace
} // namespace tolvo
