// SPDX-License-Identifier: MIT
// Keys of the toolkit as the virtual key codes and characters that KeyboardCommands knows.
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace tolvo {

namespace {

int shiftState(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? Shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? Ctrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? Alt : 0);
}

/// With Shift the digits of the upper row arrive as what is printed above them; their place on the keyboard
/// tells them.
int digitKey(const QKeyEvent &event) {
#if defined(Q_OS_LINUX)
    constexpr quint32 scanCodeOfDigit1 = 10;
    const quint32 scanCode = event.nativeScanCode();
    if (scanCode >= scanCodeOfDigit1 && scanCode < scanCodeOfDigit1 + 8)
        return keyCode::Digit1 + static_cast<int>(scanCode - scanCodeOfDigit1);
#endif
    return event.key();
}

/// The virtual key code, or 0 for keys without a meaning here.
int virtualKey(const QKeyEvent &event) {
    const int key = event.key();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12)
        return keyCode::F1 + key - Qt::Key_F1;
    if (key == Qt::Key_Up)
        return keyCode::Up;
    if (key == Qt::Key_Down)
        return keyCode::Down;
    if (key == Qt::Key_Slash)
        return keyCode::Slash;
    if (event.modifiers().testFlag(Qt::ControlModifier)) {
        const int digit = digitKey(event);
        if (digit >= keyCode::Digit1 && digit <= keyCode::Digit8)
            return digit;
    }
    return key > 0 && key < 0x80 ? key : 0;
}

/// The character of a key press, -1 for a key that types none. Ctrl and a letter give its position in the
/// alphabet.
int character(const QKeyEvent &event) {
    const int key = event.key();
    switch (key) {
    case Qt::Key_Escape:
        return 27;
    case Qt::Key_Backspace:
        return 8;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return 13;
    case Qt::Key_Tab:
        return 9;
    default:
        break;
    }
    if (event.modifiers().testFlag(Qt::ControlModifier) && !event.modifiers().testFlag(Qt::AltModifier)) {
        if (key >= Qt::Key_A && key <= Qt::Key_Z)
            return key - Qt::Key_A + 1;
        if (key == Qt::Key_BracketLeft)
            return 27;
        if (key == Qt::Key_BracketRight)
            return 29;
        return -1;
    }
    return event.text().isEmpty() || key == Qt::Key_Delete ? -1 : event.text().front().unicode();
}

} // namespace

bool MainWindow::keyPressed(const QKeyEvent &event, bool inTextBox) {
    const int code = virtualKey(event);
    if (m_keys->formKeyDown(code, shiftState(event.modifiers())))
        return true;
    if (inTextBox && m_keys->textKeyDown(code))
        return true;
    const int typed = character(event);
    if (typed < 0)
        return false;
    return m_keys->formKeyPress(typed) || (inTextBox && m_keys->textKeyPress(typed));
}

/// The Tab key types a tab into the text; with Ctrl it goes on to the next control, with Shift too to the one
/// before.
bool MainWindow::leaveTextBox(const QKeyEvent &event) {
    const bool forward = event.key() == Qt::Key_Tab;
    if (!event.modifiers().testFlag(Qt::ControlModifier) || (!forward && event.key() != Qt::Key_Backtab))
        return false;
    return focusNextPrevChild(forward);
}

void MainWindow::keyPressEvent(QKeyEvent *event) {
    // Keys that the control with the focus has no use for; the text box's own have been asked for already.
    if (m_session && !m_session->bSessionOver && keyPressed(*event, false))
        return;
    QWidget::keyPressEvent(event);
}

bool MainWindow::eventFilter(QObject *watched, QEvent *event) {
    if (!m_session || m_session->bSessionOver)
        return QWidget::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::KeyPress:
        if (leaveTextBox(*static_cast<QKeyEvent *>(event)) ||
            keyPressed(*static_cast<QKeyEvent *>(event), watched == &shownTextBox()))
            return true;
        break;
    case QEvent::KeyRelease:
        m_keys->formKeyUp(shiftState(static_cast<QKeyEvent *>(event)->modifiers()));
        break;
    case QEvent::InputMethod:
        if (!static_cast<QInputMethodEvent *>(event)->commitString().isEmpty())
            m_session->setStatus({});
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tolvo
