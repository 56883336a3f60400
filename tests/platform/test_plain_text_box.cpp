// SPDX-License-Identifier: MIT
#include "platform/desktop/PlainTextBox.h"
#include "platform/headless/MemoryTextBox.h"
#include "tests/platform/text_box_contract.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QTest>
#include <QTextBlock>

#include <random>

namespace tolvo {

std::vector<TextBoxKind> textBoxKinds() {
    return {{"AsTheyAre", [] { return std::make_unique<PlainTextBox>(PlainTextBox::Lines::AsTheyAre); }},
            {"Wrapped", [] { return std::make_unique<PlainTextBox>(PlainTextBox::Lines::Wrapped); }}};
}

namespace {

class User : public testing::Test {
  protected:
    User() {
        box.onChange = [this] { ++changes; };
    }
    void types(const QString &keys) { QTest::keyClicks(&box, keys); }
    void presses(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QTest::keyClick(&box, key, held);
    }
    void pastes(const QString &foreign) {
        QApplication::clipboard()->setText(foreign);
        box.paste();
    }
    void commits(const QString &text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&box, &event);
    }
    void drops(const QString &text) {
        QMimeData data;
        data.setText(text);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &event);
    }
    [[nodiscard]] static QString clipboard() { return QApplication::clipboard()->text(); }

    PlainTextBox box{PlainTextBox::Lines::AsTheyAre};
    int changes = 0;
};

TEST_F(User, SeesABlockForEachLine) {
    box.setText(QStringLiteral("one\r\ntwo\nstill two\r\n"));
    EXPECT_EQ(box.document()->blockCount(), 3);
}

// Random edits by code and keys, step by step beside the box without a window.
TEST_F(User, AndCodeEditBothTextBoxesAlike) {
    std::mt19937 random(7);
    const auto upTo = [&](int last) { return std::uniform_int_distribution<int>(0, last)(random); };
    const QString alphabet =
        QStringLiteral("\r\n\r\n\r\n a\u2029\uFDD0\uFDD1\uFDD2\uFDD3\uFDEF\u2028\u00A0") + QChar(0) +
        QChar(0xD800) + QChar(0xDC00);
    MemoryTextBox memory(60);
    int memoryChanges = 0;
    memory.onChange = [&] { ++memoryChanges; };
    box.setCapacity(60);
    for (int step = 0; step < 4000; ++step) {
        QString text;
        for (int units = upTo(8); units > 0; --units)
            text += alphabet[upTo(static_cast<int>(alphabet.size()) - 1)];
        const int what = upTo(9);
        const int start = upTo(64) - 2;
        const int length = upTo(9);
        for (TextBox *each : {static_cast<TextBox *>(&memory), static_cast<TextBox *>(&box)}) {
            if (what == 0)
                each->setText(text.repeated(4));
            else
                select(*each, start, length);
            if (what > 3)
                each->setSelText(text);
        }
        if (what == 3 && memory.SelLength() > 0) {
            presses(Qt::Key_Delete);
            memory.setSelText({});
        }
        ASSERT_EQ(box.Text(), memory.Text()) << "step " << step;
        ASSERT_EQ(box.SelStart(), memory.SelStart()) << "step " << step;
        ASSERT_EQ(box.SelLength(), memory.SelLength()) << "step " << step;
        ASSERT_EQ(box.SelText(), memory.SelText()) << "step " << step;
        ASSERT_EQ(changes, memoryChanges) << "step " << step;
    }
}

TEST_F(User, TypesUpToTheCapacity) {
    box.setCapacity(6);
    types(QStringLiteral("abcd"));
    presses(Qt::Key_Enter);
    EXPECT_EQ(box.Text(), QStringLiteral("abcd\r\n"));
    const int before = changes;
    types(QStringLiteral("x"));
    presses(Qt::Key_Enter);
    commits(QStringLiteral("\u00FC"));
    pastes(QStringLiteral("yz"));
    drops(QStringLiteral("yz"));
    EXPECT_EQ(box.Text(), QStringLiteral("abcd\r\n"));
    EXPECT_EQ(changes, before);
    select(box, 0, 1);
    types(QStringLiteral("X"));
    EXPECT_EQ(box.Text(), QStringLiteral("Xbcd\r\n"));
    // One unit of room is none for a line end.
    presses(Qt::Key_Backspace);
    presses(Qt::Key_Return);
    EXPECT_EQ(box.Text(), QStringLiteral("bcd\r\n"));
}

TEST_F(User, GetsOfPasteDropAndInputMethodWhatFits) {
    box.setCapacity(5);
    pastes(QStringLiteral("a\nbcdef"));
    EXPECT_EQ(box.Text(), QStringLiteral("a\r\nbc"));
    box.setText(QStringLiteral("12"));
    drops(QStringLiteral("abcdef"));
    EXPECT_EQ(box.length(), 5);
    box.setText(QStringLiteral("12"));
    commits(QStringLiteral("abcdef"));
    EXPECT_EQ(box.Text(), QStringLiteral("abc12"));
    // What goes round all doors is cut behind the fact.
    box.setText(QStringLiteral("12"));
    box.textCursor().insertText(QStringLiteral("a\nbcdef"));
    EXPECT_EQ(box.Text(), QStringLiteral("a\r\n12"));
}

TEST_F(User, PastesInTheFormOfTheTextArea) {
    pastes(QStringLiteral("a\nb\n"));
    EXPECT_EQ(box.Text(), QStringLiteral("a\r\nb\r\n"));
    box.setText({});
    pastes(QStringLiteral("a\rb\nc\u2029\uFDD2"));
    EXPECT_EQ(box.Text(), QStringLiteral("a\rb\nc\u2029\uFDD2"));
    EXPECT_TRUE(box.hasTypingToTakeBack());
}

TEST_F(User, CopiesAndCutsTheRealText) {
    const QString text = QStringLiteral("a\u00A0b\r\nc\rd\u2029\uFDD2\uFDD0");
    box.setText(text);
    box.selectAll();
    box.copy();
    EXPECT_EQ(clipboard(), QString(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
    ClipboardLineEnds rule;
    (void)rule.takeIn(QStringLiteral("\r\n"));
    box.setLineEnds(rule);
    box.cut();
    EXPECT_EQ(clipboard(), text);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(User, ShiftEnterIsALineEnd) {
    presses(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), QStringLiteral("\r\n"));
}

TEST_F(User, TypesCharactersThatStandForOthers) {
    box.setText(QStringLiteral("a\nb\rc"));
    for (char16_t unit = 0xFDD0; unit <= 0xFDD9; ++unit)
        commits(QString(QChar(unit)));
    EXPECT_EQ(box.Text(), QStringLiteral("\uFDD0\uFDD1\uFDD2\uFDD3\uFDD4\uFDD5\uFDD6\uFDD7\uFDD8\uFDD9"
                                         "a\nb\rc"));
}

TEST_F(User, DeletingBetweenCrAndLfMakesALineEnd) {
    box.setText(QStringLiteral("a\rX\nb"));
    box.setSelStart(2);
    presses(Qt::Key_Delete);
    EXPECT_EQ(box.Text(), QStringLiteral("a\r\nb"));
    EXPECT_EQ(box.document()->blockCount(), 2);
    EXPECT_FALSE(box.hasTypingToTakeBack());
    presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), QStringLiteral("a\r\nb"));
}

TEST_F(User, TakesBackTypingButNothingThatCodeDid) {
    box.setText(QStringLiteral("base"));
    EXPECT_FALSE(box.hasTypingToTakeBack());
    types(QStringLiteral("abc"));
    EXPECT_TRUE(box.hasTypingToTakeBack());
    box.takeBackTyping();
    EXPECT_EQ(box.Text(), QStringLiteral("base"));
    EXPECT_TRUE(box.hasTypingToRestore());
    types(QStringLiteral("x"));
    select(box, 0, 1);
    box.setSelText(QStringLiteral("\rtool\n"));
    EXPECT_FALSE(box.hasTypingToTakeBack());
    presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), QStringLiteral("\rtool\nbase"));
    types(QStringLiteral("y"));
    presses(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), QStringLiteral("\rtool\nbase"));
}

TEST_F(User, MovesOverALineEndInOneStep) {
    box.setText(QStringLiteral("a\r\nb"));
    presses(Qt::Key_Right);
    presses(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(box.SelStart(), 1);
    EXPECT_EQ(box.SelText(), QStringLiteral("\r\n"));
    presses(Qt::Key_Left, Qt::ShiftModifier);
    presses(Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(box.SelStart(), 0);
    EXPECT_EQ(box.SelText(), QStringLiteral("a"));
}

TEST_F(User, SeesLongRunsBrokenAnywhere) {
    PlainTextBox wrapped(PlainTextBox::Lines::Wrapped);
    wrapped.setText(QString(2000, u'x') + u' ' + QString(2000, u'x'));
    EXPECT_EQ(wrapped.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTest::keyClicks(&wrapped, QStringLiteral("x"));
    EXPECT_EQ(wrapped.wordWrapMode(), QTextOption::WrapAnywhere);
    QTest::keyClick(&wrapped, Qt::Key_Backspace);
    EXPECT_EQ(wrapped.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    wrapped.setText(QString(2001, u'x'));
    EXPECT_EQ(wrapped.wordWrapMode(), QTextOption::WrapAnywhere);
}

} // namespace
} // namespace tolvo
