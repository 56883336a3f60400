// SPDX-License-Identifier: MIT
#include "platform/desktop/CommandKeys.h"
#include "shell/keyboard.h"
#include "shell/ui/key_strokes.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QWidget>
#include <gtest/gtest.h>

using namespace tolvo;
using namespace tolvo::ShiftState;

namespace {

/// Keeps what arrives.
class Listener : public QWidget {
  public:
    KeyStroke stroke;
    QString text;

  protected:
    void keyPressEvent(QKeyEvent *event) override {
        stroke = keyStroke(*event);
        text = event->text();
    }
};

constexpr auto ctrl = Qt::ControlModifier;
constexpr auto alt = Qt::AltModifier;
constexpr auto shift = Qt::ShiftModifier;
constexpr auto altGr = Qt::GroupSwitchModifier;
constexpr auto keypad = Qt::KeypadModifier;

TEST(KeyStrokes, areFoundByMeaning) {
    constexpr int slash = 191;
    struct Row {
        const char *layout;
        int key; ///< as the toolkit reports it
        Qt::KeyboardModifiers held;
        quint32 place;
        const char *text;
        char16_t latin; ///< what the user's Latin layout has on this key, 0 where the layout is Latin itself
        KeyStroke expected;
        const char *typed = "";
        quint32 native = 0; ///< native modifiers
    };
    const Row rows[] = {
        {"us", Qt::Key_D, {}, 40, "d", 0, {'D', 0, 'd'}, "d"},
        {"us", Qt::Key_D, alt, 40, "d", 0, {'D', Alt, -1}},
        {"us", Qt::Key_C, ctrl | shift, 54, "", 0, {'C', Ctrl | Shift, 3}},
        {"us", Qt::Key_A, ctrl | alt, 38, "\1", 0, {'A', Ctrl | Alt, -1}},
        {"us", Qt::Key_1, ctrl | alt, 10, "1", 0, {'1', Ctrl | Alt, -1}},
        {"us", Qt::Key_R, Qt::MetaModifier, 27, "r", 0, {'R', 0, -1}},
        {"us", Qt::Key_Ampersand, ctrl | shift, 16, "&", 0, {'7', Ctrl | Shift, -1}, "&"},
        {"us", Qt::Key_Slash, ctrl, 61, "\x1f", 0, {slash, Ctrl, -1}, "\x1f"},
        {"us", Qt::Key_Slash, ctrl | keypad, 106, "/", 0, {slash, Ctrl, -1}},
        {"us", Qt::Key_5, ctrl | keypad, 84, "5", 0, {'5', Ctrl, -1}},
        {"us", Qt::Key_Up, alt, 111, "", 0, {38, Alt, -1}},
        // Keys that share a character code with another one
        {"us", Qt::Key_H, ctrl, 43, "\b", 0, {'H', Ctrl, 8}, "\b"},
        {"us", Qt::Key_Backspace, {}, 22, "\b", 0, {0, 0, 8}, "\b"},
        {"us", Qt::Key_Backspace, ctrl, 22, "\b", 0, {0, Ctrl, 127}, "\b"},
        {"us", Qt::Key_Backspace, alt, 22, "\b", 0, {0, Alt, -1}},
        {"us", Qt::Key_BracketLeft, ctrl, 34, "\x1b", 0, {0, Ctrl, 27}, "\x1b"},
        {"us", Qt::Key_Escape, {}, 9, "\x1b", 0, {0, 0, 27}, "\x1b"},
        // The place of a digit yields to a command; AltGr is neither Ctrl nor Alt
        {"de", Qt::Key_Slash, ctrl | shift, 16, "\x1f", 0, {slash, Ctrl, -1}, "\x1f"},
        {"de", Qt::Key_BracketLeft, ctrl | altGr, 17, "\x1b", 0, {0, Ctrl, 27}, "\x1b"},
        {"de", Qt::Key_Udiaeresis, ctrl, 34, "ü", 0, {0, Ctrl, -1}, "ü"},
        {"de", Qt::Key_BraceLeft, altGr, 16, "{", 0, {0, 0, '{'}, "{"},
        {"fr", Qt::Key_BracketLeft, ctrl | altGr, 14, "\x1b", 0, {0, Ctrl, 27}, "\x1b"},
        {"fr", Qt::Key_Ampersand, ctrl, 10, "&", 0, {'1', Ctrl, -1}, "&"},
        {"fr", Qt::Key_1, ctrl | shift, 10, "1", 0, {'1', Ctrl | Shift, -1}, "1"},
        {"fr", Qt::Key_Ampersand, alt, 10, "&", 0, {0, Alt, -1}},
        {"fr", Qt::Key_ParenLeft, alt, 14, "(", 0, {0, Alt, -1}},
        {"es", Qt::Key_onehalf, ctrl | altGr, 14, "½", 0, {0, Ctrl, -1}, "½"},
        {"es on Wayland", Qt::Key_onehalf, ctrl, 14, "½", 0, {0, Ctrl, -1}, "½", 0x80},
        // No Latin letter in the layout
        {"ru", 0x412, {}, 40, "в", u'd', {0, 0, 0x432}, "в"},
        {"ru", 0x412, alt, 40, "в", u'd', {'D', Alt, -1}},
        {"ru", 0x421, ctrl | shift, 54, "С", u'c', {'C', Ctrl | Shift, 3}},
        {"ru", 0x425, ctrl, 34, "х", u'[', {0, Ctrl, 27}},
        {"ru", Qt::Key_Period, ctrl, 61, ".", u'/', {0, Ctrl, -1}, "."},
        {"gr", Qt::Key_Semicolon, alt, 24, ";", u'q', {'Q', Alt, -1}},
    };
    char16_t latin = 0;
    const CommandKeys commandKeys([&](quint32, quint32) { return latin; });
    for (const Row &row : rows) {
        SCOPED_TRACE(testing::Message() << row.layout << " key " << row.key << " place " << row.place);
        latin = row.latin;
        Listener listener;
        QKeyEvent event(QEvent::KeyPress, row.key, row.held, row.place, 0, row.native,
                        QString::fromUtf8(row.text));
        QCoreApplication::sendEvent(&listener, &event);
        EXPECT_EQ(listener.stroke.code, row.expected.code);
        EXPECT_EQ(listener.stroke.shiftState, row.expected.shiftState);
        EXPECT_EQ(listener.stroke.character, row.expected.character);
        EXPECT_EQ(listener.text, QString::fromUtf8(row.typed));
    }
}

} // namespace
