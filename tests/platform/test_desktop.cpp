// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/DesktopMessageBoxes.h"
#include "platform/desktop/EscapeWatch.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

TEST(DesktopClipboard, TakesAndWritesInTheLineEndsOfTheOthers) {
    DesktopClipboard clipboard;
    QApplication::clipboard()->setText(u"a\nb"_s);
    EXPECT_EQ(clipboard.takeText(), u"a\r\nb"_s);
    clipboard.writeText(u"x\r\ny"_s);
    EXPECT_EQ(QApplication::clipboard()->text(), u"x\ny"_s);
    QApplication::clipboard()->setText(u"a\r\nb"_s);
    EXPECT_EQ(clipboard.readText(), u"a\r\nb"_s);
    clipboard.writeText(u"x\r\ny"_s);
    EXPECT_EQ(QApplication::clipboard()->text(), u"x\ny"_s);
    clipboard.writeText({});
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    auto *picture = new QMimeData;
    picture->setData(u"image/png"_s, "png");
    QApplication::clipboard()->setMimeData(picture);
    EXPECT_EQ(clipboard.takeText(), QString());
}

TEST(DesktopMessageBoxes, ShowTheTextAsItIsAndAnswerByNoUnlessTold) {
    struct Row {
        Box box;
        Qt::Key key;
        BoxAnswer answer;
    };
    const QString text = u"<b>&bold</b>\r\nnext"_s;
    const Row rows[] = {
        {{.text = text}, Qt::Key_Escape, BoxAnswer::Ok},
        {{.text = text, .buttons = BoxButtons::YesNo}, Qt::Key_Escape, BoxAnswer::No},
        {{.text = text, .buttons = BoxButtons::YesNo}, Qt::Key_Return, BoxAnswer::No},
        {{.text = text, .title = u"T"_s, .buttons = BoxButtons::YesNo}, Qt::Key_Y, BoxAnswer::Yes},
    };
    for (const Row &row : rows) {
        QTimer::singleShot(0, [&] {
            auto *window = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(window, nullptr);
            EXPECT_EQ(window->textFormat(), Qt::PlainText);
            EXPECT_EQ(window->text(), u"<b>&bold</b>\nnext"_s);
            EXPECT_EQ(window->windowTitle(), row.box.title.isEmpty() ? u"Tolvo"_s : row.box.title);
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
        QTest::keyClicks(&field, u"abc"_s);
        EXPECT_FALSE(watch.escapePressed());
        QTest::keyClick(&field, Qt::Key_Escape);
        EXPECT_TRUE(watch.escapePressed());
        EXPECT_FALSE(field.close());
    }
    QTest::keyClicks(&field, u"abc"_s);
    EXPECT_EQ(field.text(), u"abc"_s);
    const auto again = watch.guard();
    EXPECT_FALSE(watch.escapePressed());
}

} // namespace
} // namespace tolvo

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
