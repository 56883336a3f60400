// SPDX-License-Identifier: MIT
// The key Enter in dialogs.
#pragma once

#include <QKeyEvent>
#include <QToolButton>

namespace tolvo {

/// Enter, on the keypad or not, alone.
[[nodiscard]] inline bool isEnter(const QKeyEvent &event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == 0;
}

/// To be asked by a dialog before its default button gets the key: Enter presses the tool button that has the
/// focus, as it does with push buttons. True if it did.
[[nodiscard]] inline bool pressToolButton(const QKeyEvent &event, QWidget *focus) {
    auto *const button = qobject_cast<QToolButton *>(focus);
    if (button == nullptr || !isEnter(event))
        return false;
    button->click();
    return true;
}

} // namespace tolvo
