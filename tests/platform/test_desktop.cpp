// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/DesktopMessageBoxes.h"
#include "platform/desktop/DesktopSound.h"
#include "platform/desktop/EscapeWatch.h"
#include "platform/desktop/font_conversion.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace tolvo {
namespace {

TEST(DesktopClipboard, TakesAndWritesInTheLineEndsOfTheOthers) {
    DesktopClipboard clipboard;
    QApplication::clipboard()->setText(QStringLiteral("a\nb"));
    EXPECT_EQ(clipboard.takeText(), QStringLiteral("a\r\nb"));
    clipboard.writeText(QStringLiteral("x\r\ny"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("x\ny"));
    QApplication::clipboard()->setText(QStringLiteral("a\r\nb"));
    EXPECT_EQ(clipboard.readText(), QStringLiteral("a\r\nb"));
    clipboard.writeText(QStringLiteral("x\r\ny"));
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("x\ny"));
    clipboard.writeText({});
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    auto *picture = new QMimeData;
    picture->setData(QStringLiteral("image/png"), "png");
    QApplication::clipboard()->setMimeData(picture);
    EXPECT_EQ(clipboard.takeText(), QString());
}

TEST(DesktopMessageBoxes, ShowTheTextAsItIsAndAnswerByNoUnlessTold) {
    struct Row {
        Box box;
        Qt::Key key;
        BoxAnswer answer;
    };
    const QString text = QStringLiteral("<b>&bold</b>\r\nnext");
    const Row rows[] = {
        {{.text = text}, Qt::Key_Escape, BoxAnswer::Ok},
        {{.text = text, .buttons = BoxButtons::YesNo}, Qt::Key_Escape, BoxAnswer::No},
        {{.text = text, .buttons = BoxButtons::YesNo}, Qt::Key_Return, BoxAnswer::No},
        {{.text = text, .title = QStringLiteral("T"), .buttons = BoxButtons::YesNo},
         Qt::Key_Y,
         BoxAnswer::Yes},
    };
    for (const Row &row : rows) {
        QTimer::singleShot(0, [&] {
            auto *window = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            EXPECT_EQ(window->textFormat(), Qt::PlainText);
            EXPECT_EQ(window->text(), QStringLiteral("<b>&bold</b>\nnext"));
            EXPECT_EQ(window->windowTitle(),
                      row.box.title.isEmpty() ? QStringLiteral("Tolvo") : row.box.title);
            if (row.answer == BoxAnswer::Yes)
                window->button(QMessageBox::Yes)->click();
            else
                QTest::keyClick(window, row.key);
        });
        EXPECT_EQ(DesktopMessageBoxes().show(row.box), row.answer);
    }
}

TEST(EscapeWatch, KeepsInputAwayAndNotesEsc) {
    QLineEdit field;
    field.show();
    EscapeWatch watch;
    {
        const auto guard = watch.guard();
        QTest::keyClicks(&field, QStringLiteral("abc"));
        EXPECT_FALSE(watch.escapePressed());
        QTest::keyClick(&field, Qt::Key_Escape);
        EXPECT_TRUE(watch.escapePressed());
        EXPECT_FALSE(field.close());
    }
    QTest::keyClicks(&field, QStringLiteral("abc"));
    EXPECT_EQ(field.text(), QStringLiteral("abc"));
    const auto again = watch.guard();
    EXPECT_FALSE(watch.escapePressed());
}

TEST(Fonts, ComeBackAsTheyWent) {
    const Font font{.name = QStringLiteral("Courier New"), .size = 10.5, .bold = true, .italic = true};
    EXPECT_EQ(fromQFont(toQFont(font)), font);
    EXPECT_GT(toQFont({.name = QStringLiteral("Arial")}).pointSizeF(), 0);
}

TEST(DesktopSound, AMissingFileIsNoFailure) {
    EXPECT_FALSE(DesktopSound().playWave(QStringLiteral("/nowhere/scrbar.wav"), false));
}

} // namespace
} // namespace tolvo

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
