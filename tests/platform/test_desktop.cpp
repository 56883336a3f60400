// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/DesktopMessageBoxes.h"
#include "platform/desktop/EscapeWatch.h"

#include "tests/ui/user.h"

#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

TEST(DesktopClipboard, TakesAndWritesInTheLineEndsOfTheOthers) {
    DesktopClipboard clipboard;
    QApplication::clipboard()->setText(u"a\nb"_s);
    EXPECT_EQ(clipboard.takeText(), u"a\r\nb"_s);
    clipboard.writeText(u"x\r\ny"_s);
    EXPECT_EQ(QApplication::clipboard()->text(), u"x\ny"_s);
    clipboard.writeText({});
    EXPECT_EQ(QApplication::clipboard()->text(), QString());
    auto *picture = new QMimeData;
    picture->setData(u"image/png"_s, "png");
    QApplication::clipboard()->setMimeData(picture);
    EXPECT_EQ(clipboard.takeText(), QString());
}

TEST(DesktopClipboard, SaysWhatItHeldInsteadOfAText) {
    using enum ClipboardContent;
    const std::pair<QString, ClipboardContent> rows[] = {
        {u"text/plain"_s, Text},
        {u"image/png"_s, Picture},
        {u"application/x-qt-image"_s, Picture},
        {u"application/x-thing"_s, Other},
        {{}, Nothing},
    };
    for (const auto &[format, content] : rows) {
        DesktopClipboard clipboard;
        std::optional<ClipboardContent> told;
        clipboard.onTaken = [&](ClipboardContent held) { told = held; };
        auto *data = new QMimeData;
        if (!format.isEmpty())
            data->setData(format, "x");
        QApplication::clipboard()->setMimeData(data);
        EXPECT_TRUE(clipboard.takeText().has_value());
        EXPECT_EQ(told, content) << format.toStdString();
    }
}

TEST(DesktopMessageBoxes, ShowTheTextAsItIsAndAnswerByNoUnlessTold) {
    const QString text = u"<b>&bold</b>\r\nnext"_s;
    const std::tuple<Box, Qt::Key, BoxAnswer> rows[] = {
        {{.text = text}, Qt::Key_Escape, BoxAnswer::Ok},
        {{.text = text, .buttons = BoxButtons::YesNo}, Qt::Key_Escape, BoxAnswer::No},
        {{.text = text, .buttons = BoxButtons::YesNo}, Qt::Key_Return, BoxAnswer::No},
        {{.text = text, .title = u"T"_s, .buttons = BoxButtons::YesNo}, Qt::Key_Y, BoxAnswer::Yes},
    };
    for (const auto &row : rows) {
        const Box &box = std::get<Box>(row);
        const auto answer = std::get<BoxAnswer>(row);
        withModal<QMessageBox>([&](QMessageBox &window) {
            EXPECT_EQ(window.textFormat(), Qt::PlainText);
            EXPECT_EQ(window.text(), u"<b>&bold</b>\nnext"_s);
            EXPECT_EQ(window.windowTitle(), box.title.isEmpty() ? u"Tolvo"_s : box.title);
            if (answer == BoxAnswer::Yes)
                window.button(QMessageBox::Yes)->click();
            else
                QTest::keyClick(&window, std::get<Qt::Key>(row));
        });
        EXPECT_EQ(DesktopMessageBoxes().show(box), answer);
    }
}

TEST(DesktopMessageBoxes, AreNoLargerThanTheScreen) {
    const QString end = u"\r\n(error 5005)"_s;
    const QString lines = u"line\r\n"_s.repeated(20'000);
    const QString pairs = u"\U0001F600"_s.repeated(60'000);
    for (const QString &text : {QString(120'000, u'W'), lines, u"lone\n"_s.repeated(20'000),
                                u"word "_s.repeated(24'000), pairs, u'x' + pairs}) {
        withModal<QMessageBox>([&](QMessageBox &window) {
            const QSize screen = window.screen()->availableSize();
            EXPECT_LE(window.height(), screen.height()) << text.left(5).toStdString();
            EXPECT_LE(window.width(), screen.width()) << text.left(5).toStdString();
            EXPECT_TRUE(window.text().startsWith(text.left(2))) << "its beginning";
            EXPECT_TRUE(window.text().endsWith(u"(error 5005)")) << "its end";
            EXPECT_TRUE(window.text().isValidUtf16());
        });
        DesktopMessageBoxes().show({.text = text + end});
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
