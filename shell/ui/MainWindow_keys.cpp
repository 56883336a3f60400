// SPDX-License-Identifier: MIT
// The way of a key from the window to KeyboardCommands.
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/key_strokes.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QShortcut>

namespace tolvo {

/// Alt and a letter is found as mnemonics are: Qt knows on every platform which key of a layout without Latin
/// letters has the letter in another of the user's layouts.
void MainWindow::connectAltLetters() {
    for (const int letter : keyCode::AltLetters) {
        const QKeySequence keys(Qt::ALT | static_cast<Qt::Key>(letter));
        connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, letter] {
            // Some layouts have Latin letters with Shift: that is another key.
            const bool alone = !QGuiApplication::keyboardModifiers().testFlag(Qt::ShiftModifier);
            if (alone && !m_session->bSessionOver)
                m_keys->formKeyDown(letter, ShiftState::Alt);
        });
    }
}

bool MainWindow::keyPressed(const QKeyEvent &event, bool inTextBox) {
    const KeyStroke stroke = keyStroke(event);
    if (m_keys->formKeyDown(stroke.code, stroke.shiftState))
        return true;
    if (inTextBox && m_keys->textKeyDown(stroke.code))
        return true;
    if (stroke.character < 0)
        return false;
    return m_keys->formKeyPress(stroke.character) || (inTextBox && m_keys->textKeyPress(stroke.character));
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
