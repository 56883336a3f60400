// SPDX-License-Identifier: MIT
#include "platform/desktop/CommandKeys.h"
#include "shell/keyboard.h"
#include "shell/ui/key_strokes.h"
#include "tests/support/examples.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QWidget>

using namespace tolvo;
using namespace tolvo::test;
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

/// Modifiers and their bits of the shift state, by the names in the rows.
struct Held {
    const char *name;
    Qt::KeyboardModifier modifier;
    int bit;
};
constexpr Held heldKeys[] = {{"Ctrl", Qt::ControlModifier, Ctrl}, {"Alt", Qt::AltModifier, Alt},
                             {"Shift", Qt::ShiftModifier, Shift}, {"AltGr", Qt::GroupSwitchModifier, 0},
                             {"Keypad", Qt::KeypadModifier, 0},   {"Meta", Qt::MetaModifier, 0}};

std::pair<Qt::KeyboardModifiers, int> readHeld(const QString &names) {
    std::pair<Qt::KeyboardModifiers, int> read;
    for (const auto &[name, modifier, bit] : heldKeys) {
        if (names.split(u'+').contains(QLatin1StringView(name))) {
            read.first |= modifier;
            read.second |= bit;
        }
    }
    return read;
}

int readKey(const QString &name) {
    const int key = QMetaEnum::fromType<Qt::Key>().keyToValue(name.toLatin1());
    return key < 0 ? name.toInt(nullptr, 16) : key;
}

TEST(KeyStrokes, areFoundByMeaning) {
#ifdef Q_OS_WIN
    GTEST_SKIP() << "the table has the places of keys, and the texts with Ctrl and Alt, of X11";
#endif
    char16_t latin = 0;
    const CommandKeys commandKeys([&](quint32, quint32) { return latin; });
    forEachExample("/tests/shell/ui/key_examples.txt", [&](const QString &, const QStringList &row) {
        const QStringList pressed = row[0].split(u' ');
        const QStringList expected = row[3].split(u' ');
        latin = row[2].isEmpty() ? u'\0' : row[2][0].unicode();
        Listener listener;
        QKeyEvent event(QEvent::KeyPress, readKey(pressed[0]), readHeld(pressed[1]).first,
                        pressed[2].toUInt(), 0, pressed.value(3).toUInt(nullptr, 16), listOf(row[1]).first());
        QCoreApplication::sendEvent(&listener, &event);
        EXPECT_EQ(listener.stroke.code, expected[0].toInt());
        EXPECT_EQ(listener.stroke.shiftState, readHeld(expected[1]).second);
        EXPECT_EQ(listener.stroke.character, expected[2].toInt());
        EXPECT_EQ(listener.text, listOf(row[4]).first());
    });
}

/// As Windows reports AltGr: Ctrl and Alt together.
TEST(KeyStrokes, withCtrlAndAltAreCommandsUnlessTheyType) {
    const struct {
        const char *layout;
        int key;
        const char *text;
        KeyStroke expected;
    } rows[] = {
        {"us", Qt::Key_Z, "", {'Z', Ctrl | Alt, -1}},   {"us", Qt::Key_Z, "\x1a", {'Z', Ctrl | Alt, -1}},
        {"pl", Qt::Key_Z, "ż", {0, Ctrl | Alt, 0x17C}}, {"pl", 0x17B, "ż", {0, Ctrl | Alt, 0x17C}},
        {"de", Qt::Key_Q, "@", {0, Ctrl | Alt, '@'}},
    };
    for (const auto &[layout, key, text, expected] : rows) {
        const KeyStroke found = keyStroke(
            QKeyEvent(QEvent::KeyPress, key, Qt::ControlModifier | Qt::AltModifier, QString::fromUtf8(text)));
        EXPECT_EQ(found.code, expected.code) << layout << text;
        EXPECT_EQ(found.shiftState, expected.shiftState) << layout << text;
        EXPECT_EQ(found.character, expected.character) << layout << text;
    }
}

} // namespace
