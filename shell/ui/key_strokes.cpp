// SPDX-License-Identifier: MIT
#include "shell/ui/key_strokes.h"

#include "platform/desktop/CommandKeys.h"
#include "platform/desktop/keyboard_layout.h"
#include "shell/keyboard.h"

#include <QKeyEvent>

namespace tolvo {

namespace {

bool isLetter(int character) {
    return character >= 'A' && character <= 'Z';
}

bool isDigit(int character) {
    return character >= '0' && character <= '9';
}

/// Signs that are commands with Ctrl.
bool isCommandSign(int character) {
    return character == '/' || character == '[' || character == ']';
}

/// With Shift the digits of the upper row arrive as what is printed above them, and some layouts have them
/// only so. 0 for other keys.
int digitByPlace(const QKeyEvent &event) {
    const int digit = digitOfKey(event.nativeScanCode());
    return digit == 0 || digit > 8 ? 0 : keyCode::Digit1 + digit - 1;
}

/// The letter, digit or sign that a key means, 0 for none.
int meaning(const QKeyEvent &event) {
    const int given = event.key();
    if (isLetter(given) || isDigit(given) || isCommandSign(given))
        return given;
    const bool mayBeDigit = event.modifiers().testFlag(Qt::ControlModifier) && !holdsAltGr(event);
    return mayBeDigit ? digitByPlace(event) : 0;
}

int virtualKey(const QKeyEvent &event, int meaning) {
    const int key = event.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return keyCode::F1 + key - Qt::Key_F1;
    if (key == Qt::Key_Up)
        return keyCode::Up;
    if (key == Qt::Key_Down)
        return keyCode::Down;
    if (meaning == '/')
        return keyCode::Slash;
    return isLetter(meaning) || isDigit(meaning) ? meaning : 0;
}

/// Ctrl and a letter or a bracket.
int controlCharacter(int meaning) {
    return isLetter(meaning) || meaning == '[' || meaning == ']' ? meaning - 'A' + 1 : -1;
}

int character(const QKeyEvent &event, int meaning) {
    const Qt::KeyboardModifiers modifiers = event.modifiers();
    const bool ctrl = modifiers.testFlag(Qt::ControlModifier);
    if (modifiers.testFlag(Qt::AltModifier) &&
        (!ctrl || event.text().isEmpty() || !event.text()[0].isPrint()))
        return -1; // with Ctrl and a text it is AltGr, as Windows has it
    switch (event.key()) {
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Backspace:
        return ctrl ? 127 : 8;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Tab:
        return 9;
    case Qt::Key_Delete:
        return -1;
    default:
        break;
    }
    if (ctrl && !modifiers.testFlag(Qt::AltModifier))
        return controlCharacter(meaning);
    return event.text().isEmpty() ? -1 : event.text().front().unicode();
}

/// Windows has AltGr as Ctrl and Alt together: a key that types with both held is no command.
bool typesWithAltGr(const QKeyEvent &event) {
    return event.modifiers().testFlags(Qt::ControlModifier | Qt::AltModifier) && !event.text().isEmpty() &&
           event.text().front().isPrint();
}

} // namespace

int shiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? ShiftState::Shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? ShiftState::Ctrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? ShiftState::Alt : 0);
}

KeyStroke keyStroke(const QKeyEvent &event) {
    Qt::KeyboardModifiers held = event.modifiers();
    if (typesWithAltGr(event))
        return {0, shiftState(held), character(event, 0)};
    const int meant = meaning(event);
    // Shift belongs to this sign: many layouts need it there.
    if (meant == '/' && !held.testFlag(Qt::KeypadModifier))
        held.setFlag(Qt::ShiftModifier, false);
    return {virtualKey(event, meant), shiftState(held), character(event, meant)};
}

} // namespace tolvo
