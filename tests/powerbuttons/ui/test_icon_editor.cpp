// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgEditIcon.h"
#include "powerbuttons/ui/dlgPickCharacter.h"
#include "powerbuttons/ui/icon_painter.h"
#include "tests/ui/user.h"

#include <QImage>
#include <QLabel>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

TEST(IconEditor, changesOnlyOnOK) {
    QStringList recent;
    dlgEditIcon dialog(recent);
    ButtonIcon icon{"ab", {"Serif", 12.5, true, false}, 3, 4};
    const ButtonIcon before = icon;
    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        EXPECT_EQ(child<QLabel>(shown, "labFont").text(), "Serif Bold (12.5pt)");
        click(shown, "AdjustRight");
    });
    EXPECT_FALSE(dialog.showDialog(icon));
    EXPECT_EQ(icon, before);

    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        for (const char *arrow : {"AdjustRight", "AdjustRight", "AdjustLeft", "AdjustUp"})
            click(shown, arrow);
        click(shown, "OKButton");
    });
    EXPECT_TRUE(dialog.showDialog(icon));
    EXPECT_EQ(icon, (ButtonIcon{before.text, before.font, 4, 3})); // half points of the size stay
}

TEST(IconEditor, beginsWithALetterAndTakesASymbol) {
    QStringList recent;
    dlgEditIcon dialog(recent);
    ButtonIcon icon;
    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        auto &text = child<QLineEdit>(shown, "txtSymbol");
        EXPECT_EQ(text.text(), "A");
        child<QScrollBar>(shown, "FlatScrollBar1").setValue(20);
        EXPECT_EQ(child<QLabel>(shown, "labFont").text(), "Arial (20pt)");
        for (const auto &[key, size] : {std::pair(Qt::Key_Right, 21),
                                        {Qt::Key_Up, 22},
                                        {Qt::Key_PageUp, 26},
                                        {Qt::Key_Left, 25},
                                        {Qt::Key_Down, 24},
                                        {Qt::Key_PageDown, 20}}) {
            QTest::keyClick(&child<QScrollBar>(shown, "FlatScrollBar1"), key);
            EXPECT_EQ(child<QScrollBar>(shown, "FlatScrollBar1").value(), size);
        }
        text.setText("four");
        EXPECT_EQ(text.text(), "fou");
        withModal<dlgPickCharacter>([](dlgPickCharacter &picker) {
            child<QLineEdit>(picker, "txtFind").setText("2709");
            click(picker, "OKButton");
        });
        click(shown, "imgGetSymbol");
        click(shown, "OKButton");
    });
    EXPECT_TRUE(dialog.showDialog(icon));
    EXPECT_EQ(icon.text, u"\u2709"_s);
    EXPECT_EQ(icon.font.size, 20);
    EXPECT_EQ(recent, QStringList{icon.text});
}

/// The box around everything that isn't white.
QRect inkOf(const ButtonIcon &icon, int scale) {
    const int side = iconSide * scale;
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    paintIcon(painter, image.rect(), icon);
    painter.end();
    QRect ink;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            if (qGray(image.pixel(x, y)) < 128)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

TEST(IconPainter, printsAtThePlaceAtEveryScale) {
    ButtonIcon icon{"H", {"DejaVu Sans", 12, true, false}, 0, 0};
    const QPointF centre = centredPosition(icon);
    icon.x = centre.x();
    icon.y = centre.y();
    const QRect small = inkOf(icon, 1);
    EXPECT_NEAR(small.center().x(), iconSide / 2.0, 1.5);
    EXPECT_NEAR(small.center().y(), iconSide / 2.0, 1.5);
    const QRect large = inkOf(icon, 4);
    EXPECT_NEAR(large.width(), small.width() * 4, 6);
    EXPECT_NEAR(large.left(), small.left() * 4, 6);
    icon.x += 3;
    EXPECT_NEAR(inkOf(icon, 4).left(), large.left() + 12, 1);
    icon.text.clear();
    EXPECT_TRUE(inkOf(icon, 1).isEmpty()); // white all over
    CPowerButton button;
    setIcon(button, icon);
    EXPECT_EQ(shownIcon(button, 7).text, "7");
    EXPECT_NEAR(inkOf(shownIcon(button, 7), 1).center().x(), iconSide / 2.0, 1.5);
    button.IconText = "x";
    EXPECT_EQ(shownIcon(button, 7), iconOf(button));
}

} // namespace
} // namespace tolvo
