// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/dlgEditIcon.h"
#include "powerbuttons/ui/dlgPickCharacter.h"
#include "powerbuttons/ui/icon_painter.h"
#include "tests/powerbuttons/ui/modal.h"

#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

namespace tolvo {
namespace {

TEST(IconEditor, changesOnlyOnOK) {
    QStringList recent;
    dlgEditIcon dialog(recent);
    ButtonIcon icon{QStringLiteral("ab"), {QStringLiteral("Serif"), 12.5, true, false}, 3, 4};
    const ButtonIcon before = icon;
    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        EXPECT_EQ(child<QLabel>(shown, "labFont").text(), QStringLiteral("Serif Bold (12.5pt)"));
        child<QToolButton>(shown, "AdjustRight").click();
    });
    EXPECT_FALSE(dialog.showDialog(icon));
    EXPECT_EQ(icon, before);

    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        for (const char *arrow :
             {"AdjustRight", "AdjustRight", "AdjustLeft", "AdjustUp", "AdjustUp", "AdjustDown"})
            child<QToolButton>(shown, arrow).click();
        child<QPushButton>(shown, "OKButton").click();
    });
    EXPECT_TRUE(dialog.showDialog(icon));
    EXPECT_EQ(icon,
              (ButtonIcon{before.text, before.font, 4, 3})); // the size stays what it was, half points too
}

TEST(IconEditor, beginsWithALetterAndAFont) {
    QStringList recent;
    dlgEditIcon dialog(recent);
    ButtonIcon icon;
    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        EXPECT_EQ(child<QLineEdit>(shown, "txtSymbol").text(), QStringLiteral("A"));
        child<QScrollBar>(shown, "FlatScrollBar1").setValue(20);
        EXPECT_EQ(child<QLabel>(shown, "labFont").text(), QStringLiteral("Arial (20pt)"));
        child<QLineEdit>(shown, "txtSymbol").setText(QStringLiteral("four"));
        child<QPushButton>(shown, "OKButton").click();
    });
    EXPECT_TRUE(dialog.showDialog(icon));
    EXPECT_EQ(icon.text, QStringLiteral("fou"));
    EXPECT_EQ(icon.font.size, 20);
}

TEST(IconEditor, takesSymbolAndFontFromThePicker) {
    QStringList recent;
    dlgEditIcon dialog(recent);
    ButtonIcon icon;
    withModal<dlgEditIcon>([](dlgEditIcon &shown) {
        withModal<dlgPickCharacter>([](dlgPickCharacter &picker) {
            child<QLineEdit>(picker, "txtFind").setText(QStringLiteral("2709"));
            child<QPushButton>(picker, "OKButton").click();
        });
        child<QToolButton>(shown, "imgGetSymbol").click();
        child<QPushButton>(shown, "OKButton").click();
    });
    EXPECT_TRUE(dialog.showDialog(icon));
    EXPECT_EQ(icon.text, QStringLiteral(u"\u2709"));
    EXPECT_FALSE(icon.font.name.isEmpty());
    EXPECT_EQ(recent, QStringList{QStringLiteral(u"\u2709")});
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
    ButtonIcon icon{QStringLiteral("H"), {QStringLiteral("DejaVu Sans"), 12, true, false}, 0, 0};
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
}

} // namespace
} // namespace tolvo
