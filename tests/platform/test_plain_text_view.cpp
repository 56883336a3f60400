// SPDX-License-Identifier: MIT
// How the text box shows its text.
#include "base/unseen_characters.h"
#include "platform/desktop/PlainTextBox.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

TEST(UnseenCharacters, AreThoseWithoutAShape) {
    for (const char16_t unseen : {0x00, 0x07, 0x0A, 0x7F, 0x85, 0xAD, 0x61C, 0x200B, 0x200D, 0x200F, 0x2028,
                                  0x2029, 0x202E, 0x2060, 0xFEFF, 0xFDD0, 0xFFFE})
        EXPECT_TRUE(isUnseen(unseen)) << std::hex << int{unseen};
    for (const char16_t seen : {u'\t', u' ', u'a', u'\u00A0', u'\u0301', u'\u2003', u'\uE000',
                                char16_t{0xD800}, char16_t{0xDC00}, u'\uFFFD'})
        EXPECT_FALSE(isUnseen(seen)) << std::hex << int{seen};
}

TEST(Zoom, ChangesWhatIsShownAndNotTheFont) {
    PlainTextBox box(PlainTextBox::Lines::AsTheyAre);
    QFont font(u"DejaVu Sans"_s);
    font.setPointSizeF(10);
    box.setTextFont(font);
    const double columns = box.tabStopDistance() / QFontMetricsF(box.font()).horizontalAdvance(u' ');
    const int steps[] = {150, 50, 100};
    for (const int percent : steps) {
        box.setZoom(percent);
        EXPECT_DOUBLE_EQ(box.font().pointSizeF(), percent / 10.0);
        EXPECT_DOUBLE_EQ(box.textFont().pointSizeF(), 10);
        EXPECT_NEAR(box.tabStopDistance() / QFontMetricsF(box.font()).horizontalAdvance(u' '), columns, 0.01);
    }
    box.setZoom(200);
    font.setPixelSize(12); // another font keeps the size in which the text is shown
    box.setTextFont(font);
    EXPECT_EQ(box.font().pixelSize(), 24);
}

TEST(Zoom, FollowsTheWheelWithCtrlOnly) {
    PlainTextBox box(PlainTextBox::Lines::AsTheyAre);
    QList<int> steps;
    box.onZoom = [&](int step) { steps += step; };
    const auto turn = [&](int angle, Qt::KeyboardModifiers held) {
        QWheelEvent event(QPointF(5, 5), box.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, angle), Qt::NoButton,
                          held, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box.viewport(), &event);
    };
    turn(120, Qt::NoModifier);
    turn(50, Qt::ControlModifier); // a touchpad turns in small pieces
    turn(50, Qt::ControlModifier);
    EXPECT_EQ(steps, QList<int>());
    turn(50, Qt::ControlModifier);
    turn(-270, Qt::ControlModifier);
    EXPECT_EQ(steps, (QList<int>{1, -2}));
}

TEST(Marks, ShowWhatIsUnseenAndGoAgain) {
    PlainTextBox box(PlainTextBox::Lines::Wrapped);
    box.resize(300, 200);
    box.setFrameShape(QFrame::NoFrame);
    const auto picture = [&](const QString &text) {
        box.setText(text);
        box.viewport()->clearFocus();
        return box.grab().toImage();
    };
    const QStringList texts{u"a b"_s, u"a\tb"_s, u"a\u00A0b"_s, u"a\r\nb"_s, u"a\u200Bb"_s, u"a\rb"_s};
    for (const QString &text : texts) {
        const QImage plain = picture(text);
        box.setMarks(true);
        EXPECT_NE(picture(text), plain) << text.toStdString();
        EXPECT_EQ(box.Text(), text);
        box.setMarks(false);
        EXPECT_EQ(picture(text), plain) << text.toStdString();
    }
    const QImage plain = picture(u"ab"_s);
    box.setMarks(true);
    EXPECT_EQ(picture(u"ab"_s), plain) << "nothing to mark";
}

class Reader : public testing::Test {
  protected:
    Reader() {
        box.resize(300, 60);
        box.setText(u"first\r\n"_s + u"word "_s.repeated(40) + u"\r\nlast"_s);
        box.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&box));
        auto *interface = QAccessible::queryAccessibleInterface(&box);
        text = interface->textInterface();
        edit = interface->editableTextInterface();
    }

    PlainTextBox box{PlainTextBox::Lines::Wrapped};
    QAccessibleTextInterface *text = nullptr;
    QAccessibleEditableTextInterface *edit = nullptr;
};

TEST_F(Reader, WalksTheLinesOnTheScreen) {
    QString all;
    int start = 0;
    int end = 0;
    int top = std::numeric_limits<int>::min();
    for (QString line = text->textAtOffset(0, QAccessible::LineBoundary, &start, &end); !line.isEmpty();
         line = text->textAfterOffset(start, QAccessible::LineBoundary, &start, &end)) {
        EXPECT_EQ(start, all.size());
        EXPECT_GT(text->characterRect(start).top(), top) << start;
        top = text->characterRect(start).top();
        all += line;
        int before = 0;
        int beforeEnd = 0;
        (void)text->textBeforeOffset(start, QAccessible::LineBoundary, &before, &beforeEnd);
        EXPECT_EQ(beforeEnd, start);
    }
    EXPECT_EQ(all, text->text(0, text->characterCount()));
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(8).center()), 8);
    EXPECT_EQ(text->characterRect(-1), QRect());
}

TEST_F(Reader, ScrollsWithoutMovingTheCaret) {
    const int last = text->characterCount() - 1;
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(last).center()), -1) << "out of sight";
    text->scrollToSubstring(last - 3, last);
    EXPECT_EQ(text->offsetAtPoint(text->characterRect(last).center()), last);
    EXPECT_EQ(text->cursorPosition(), 0);
}

TEST_F(Reader, EditsAsAUserDoes) {
    int reports = 0;
    box.onUserEdit = [&](const UserEdit &) { ++reports; };
    box.setCapacity(box.length() + 2);
    edit->replaceText(0, 5, u"1st\nlinefirst"_s);
    EXPECT_EQ(box.length(), box.capacity()) << "cut to the room there is";
    EXPECT_EQ(reports, 1);
    edit->deleteText(-5, 1000);
    EXPECT_EQ(box.Text(), QString());
    edit->insertText(0, u"a\nb"_s);
    EXPECT_EQ(box.Text(), u"a\r\nb"_s);
    text->addSelection(0, 99);
    EXPECT_EQ(box.SelText(), u"a\r\nb"_s);
    text->removeSelection(0);
    EXPECT_EQ(box.SelLength(), 0);
}

} // namespace
} // namespace tolvo
