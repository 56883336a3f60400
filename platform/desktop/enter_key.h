// SPDX-License-Identifier: MIT
// The key Enter in dialogs.
#pragma once

#include <QKeyEvent>
#include <QToolButton>

namespace tolvo {

/// True for Enter, on the keypad or not, without modifiers.
[[nodiscard]] inline bool isEnter(const QKeyEvent &event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == 0;
}

/// Presses the tool button that has the focus if the key is Enter, as Enter does with push buttons. True if
/// it did. A dialog calls this before its default button gets the key.
[[nodiscard]] inline bool pressToolButton(const QKeyEvent &event, QWidget *focus) {
    auto *const button = qobject_cast<QToolButton *>(focus);
    if (button == nullptr || !isEnter(event))
        return false;
    button->click();
    return true;
}

} // namespace tolvo
