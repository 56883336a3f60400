// SPDX-License-Identifier: MIT
#include "platform/desktop/PlainTextBox.h"
#include "platform/headless/MemoryTextBox.h"
#include "tests/platform/text_box_contract.h"
#include "tests/support/line_ends.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QRegularExpression>
#include <QTest>
#include <QTextBlock>

#include <random>

using namespace Qt::StringLiterals;

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
        drops(data);
    }
    void drops(const QMimeData &data) {
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &enter);
        QDropEvent event(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(box.viewport(), &event);
    }
    [[nodiscard]] static QString clipboard() { return QApplication::clipboard()->text(); }

    PlainTextBox box{PlainTextBox::Lines::AsTheyAre};
    int changes = 0;
};

// Random edits by code and keys, step by step beside the box without a window.
TEST_F(User, AndCodeEditBothTextBoxesAlike) {
    std::mt19937 random(7);
    const auto upTo = [&](int last) { return std::uniform_int_distribution<int>(0, last)(random); };
    const QString alphabet = u"\r\n\r\n\r\n a\u2029\uFDD0\uFDD1\uFDD2\uFDD3\uFDEF\u2028\u00A0"_s + QChar(0) +
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
        ASSERT_EQ(box.document()->blockCount(), memory.Text().count(u"\r\n"_s) + 1) << "step " << step;
        ASSERT_EQ(changes, memoryChanges) << "step " << step;
    }
}

TEST_F(User, TypesUpToTheCapacity) {
    box.setCapacity(6);
    types(u"abcd"_s);
    presses(Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(box.Text(), u"abcd\r\n"_s);
    const int before = changes;
    types(u"x"_s);
    presses(Qt::Key_Enter);
    commits(u"\u00FC"_s);
    pastes(u"yz"_s);
    drops(u"yz"_s);
    EXPECT_EQ(box.Text(), u"abcd\r\n"_s);
    EXPECT_EQ(changes, before);
    select(box, 0, 1);
    types(u"X"_s);
    EXPECT_EQ(box.Text(), u"Xbcd\r\n"_s);
    // One unit of room is not enough for a line end.
    presses(Qt::Key_Backspace);
    presses(Qt::Key_Return);
    EXPECT_EQ(box.Text(), u"bcd\r\n"_s);
}

TEST_F(User, DropsFilesForWhoeverTakesThem) {
    box.setText(u"text"_s);
    QMimeData files;
    files.setUrls({QUrl(u"file:///a/b%20c.txt"_s), QUrl(u"https://example.org/"_s), QUrl(u"file:///d"_s)});
    QStringList taken;
    box.onFilesDropped = [&taken](const QStringList &paths) { taken += paths; };
    drops(files);
    EXPECT_EQ(taken, QStringList()) << "while the other program waits";
    QCoreApplication::processEvents();
    EXPECT_EQ(taken, QStringList({u"/a/b c.txt"_s, u"/d"_s}));
    EXPECT_EQ(box.Text(), u"text"_s);
    QMimeData link;
    link.setUrls({QUrl(u"https://example.org/"_s)});
    drops(link);
    EXPECT_EQ(box.Text(), u"https://example.org/text"_s);
}

TEST_F(User, GetsOfPasteDropAndInputMethodWhatFits) {
    box.setCapacity(5);
    pastes(u"a\nbcdef"_s);
    EXPECT_EQ(box.Text(), u"a\r\nbc"_s);
    box.setText(u"12"_s);
    drops(u"abcdef"_s);
    EXPECT_EQ(box.length(), 5);
    box.setText(u"12"_s);
    commits(u"abcdef"_s);
    EXPECT_EQ(box.Text(), u"abc12"_s);
    // What goes round all doors is cut afterwards.
    box.setText(u"12"_s);
    box.textCursor().insertText(u"a\nbcdef"_s);
    EXPECT_EQ(box.Text(), u"a\r\n12"_s);
}

TEST_F(User, IsToldOnceOfWhatDidNotFitAndNoPairIsCut) {
    QList<qint64> told;
    box.onCut = [&](qint64 length, TextBox::Writer writer) {
        EXPECT_EQ(writer, TextBox::Writer::User);
        told += length;
    };
    box.setCapacity(5);
    const std::tuple<std::function<void()>, QString, QList<qint64>> rows[] = {
        {[&] { types(u"xyz"_s); }, u"xyz12"_s, {}},
        {[&] { types(u"vwxyz"_s); }, u"vwx12"_s, {6}}, // once for two keys
        {[&] { pastes(u"xy\n"_s); }, u"xy12"_s, {6}},
        {[&] { pastes(u"xyz"_s), pastes(u"a"_s), pastes(u"b"_s); }, u"xyz12"_s, {6, 6}},
        {[&] { drops(u"xy\U0001F600"_s); }, u"xy12"_s, {6}},
        {[&] { commits(u"xy\U0001F600"_s); }, u"xy12"_s, {6}},
        {[&] { types(u"xyz"_s), commits(u"a"_s), commits(u"b"_s); }, u"xyz12"_s, {6}},
        {[&] { box.textCursor().insertText(u"xy\U0001F600"_s); }, u"xy12"_s, {6}},
    };
    for (const auto &[brings, kept, lengths] : rows) {
        box.setText(u"12"_s);
        told.clear();
        brings();
        EXPECT_TRUE(told.isEmpty()) << "in the middle of the event";
        QCoreApplication::processEvents();
        EXPECT_EQ(box.Text().size(), kept.size()) << box.Text().toStdString();
        EXPECT_EQ(told, lengths) << kept.toStdString();
    }
}

TEST_F(User, PastesWhatTheReaderBringsAndAsksTheClipboardNothing) {
    QApplication::clipboard()->setText(u"foreign"_s);
    std::optional<QString> answer = u"read\r\n"_s;
    box.readForPaste = [&](bool selection) {
        EXPECT_FALSE(selection);
        return answer;
    };
    presses(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"read\r\n"_s);
    answer = u"menu"_s;
    box.paste();
    QCoreApplication::processEvents();
    EXPECT_EQ(box.Text(), u"read\r\nmenu"_s);
    box.setText(u"read\r\n"_s);
    answer.reset();
    presses(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(box.Text(), u"read\r\n"_s);
    QApplication::clipboard()->setMimeData(new QMimeData);
    EXPECT_TRUE(box.canPaste()) << "what it holds is seen when it is pasted";
    drops(u"x"_s);
    EXPECT_EQ(box.length(), 7);
}

TEST(TabStops, AreEightColumnsOfTheFontInUse) {
    for (const auto lines : {PlainTextBox::Lines::AsTheyAre, PlainTextBox::Lines::Wrapped}) {
        PlainTextBox box(lines);
        for (const int size : {0, 9, 30}) {
            if (size > 0)
                box.setFont(QFont(u"Monospace"_s, size));
            EXPECT_EQ(box.tabStopDistance(), 8 * QFontMetricsF(box.font()).horizontalAdvance(u' ')) << size;
        }
    }
}

TEST_F(User, CopiesAndCutsTheRealText) {
    const QString text = u"a\u00A0b\r\nc\rd\u2029\uFDD2\uFDD0"_s;
    box.setText(text);
    box.selectAll();
    box.copy();
    EXPECT_EQ(clipboard(), test::inLinesOfSystem(QString(text).replace(u"\r\n"_s, u"\n"_s)));
    ClipboardLineEnds rule;
    (void)rule.takeIn(u"\r\n"_s);
    box.setLineEnds(rule);
    box.cut();
    EXPECT_EQ(clipboard(), text);
    EXPECT_EQ(box.Text(), QString());
}

TEST_F(User, TypesCharactersThatStandForOthers) {
    box.setText(u"a\nb\rc"_s);
    for (char16_t unit = 0xFDD0; unit <= 0xFDD9; ++unit)
        commits(QString(QChar(unit)));
    EXPECT_EQ(box.Text(), u"\uFDD0\uFDD1\uFDD2\uFDD3\uFDD4\uFDD5\uFDD6\uFDD7\uFDD8\uFDD9"
                          "a\nb\rc"_s);
    // The same in the middle of a drop.
    box.setText(u"a\nb\rc"_s);
    for (char16_t unit = 0xFDD2; unit <= 0xFDD9; ++unit)
        drops(QString(QChar(unit)));
    EXPECT_EQ(box.length(), 13);
    EXPECT_EQ(box.Text().remove(QRegularExpression(u"[\uFDD2-\uFDD9]"_s)), u"a\nb\rc"_s);
}

TEST_F(User, IsReportedButNotCode) {
    QStringList reports;
    QString last = u"a \rb"_s;
    box.onUserEdit = [&](const UserEdit &edit) {
        EXPECT_EQ(edit.before, last);
        last = box.Text();
        reports +=
            u"%1+%2%3 %4"_s.arg(edit.selStart).arg(edit.selLength).arg(edit.atOnce ? u"!"_s : u""_s, last);
    };
    box.setText(last);
    select(box, 0, 1);
    types(u"xy"_s);
    presses(Qt::Key_Backspace);
    select(box, 3, 0);
    commits(u"\n"_s); // after the lone CR
    select(box, 1, 1);
    box.cut();
    pastes(u"p\nq"_s);
    select(box, 2, 0);
    presses(Qt::Key_Delete);
    commits(u"ü\uFDD2"_s);
    presses(Qt::Key_Backspace, Qt::ControlModifier);
    select(box, 0, 3);
    drops(u"d"_s);
    box.setSelText(u"code"_s);
    presses(Qt::Key_Left);
    presses(Qt::Key_Z, Qt::ControlModifier); // no undo of the widget's own
    const QString all = reports.join(u'|').replace(u'\r', u"{"_s).replace(u'\n', u"}"_s);
    EXPECT_EQ(all, u"0+1 x {b|1+0 xy {b|2+0 x {b|3+0 x {}b|1+1 x{}b|1+0! xp{}q{}b|2+0 xpq{}b|"
                   "2+0 xpü\uFDD2q{}b|4+0 q{}b|0+3! dq{}b"_s);
}

TEST_F(User, FindsTheProgramsUndoInTheContextMenu) {
    QAction undo(u"U"_s);
    QAction redo(u"R"_s);
    box.setUndoActions(undo, redo);
    QStringList names;
    const auto menu = box.contextMenu();
    for (const QAction *action : menu->actions())
        names += action->text();
    EXPECT_EQ(names.mid(0, 3), QStringList({u"U"_s, u"R"_s, QString()}));
    EXPECT_TRUE(names.filter(QRegularExpression(u"Undo|Redo"_s)).isEmpty());
}

} // namespace
} // namespace tolvo
