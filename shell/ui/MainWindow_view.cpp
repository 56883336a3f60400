// SPDX-License-Identifier: MIT
// What the main window shows of the session.
#include "platform/desktop/EscapeWatch.h"
#include "platform/desktop/font_conversion.h"
#include "platform/desktop/plain_tool_tip.h"
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"

#include <QAction>
#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>

namespace tolvo {

void MainWindow::statusChanged(const QString &text) {
    m_status = text;
    showElidedStatus();
}

void MainWindow::showElidedStatus() {
    m_labStatus->setText(
        m_labStatus->fontMetrics().elidedText(m_status, Qt::ElideRight, m_labStatus->width()));
    m_labStatus->setToolTip(m_labStatus->text() == m_status ? QString() : plainToolTip(m_status));
    m_labStatus->setAccessibleName(m_status.isEmpty() ? QStringLiteral("Status") : m_status);
}

void MainWindow::undoRedoChanged(bool undoEnabled, bool redoEnabled) {
    m_cmdUndo->setEnabled(undoEnabled);
    m_cmdRedo->setEnabled(redoEnabled);
    m_undoAction->setEnabled(undoEnabled);
    m_redoAction->setEnabled(redoEnabled);
}

void MainWindow::showTextBox(bool wrapped) {
    // Show before hide: a window without any text box would give the focus to a button for a moment.
    (wrapped ? m_txtTextWW : m_txtText1)->show();
    (wrapped ? m_txtText1 : m_txtTextWW)->hide();
    m_imgWordwrap->setChecked(wrapped);
}

void MainWindow::setTextFont(bool wrapped, const Font &font) {
    (wrapped ? m_txtTextWW : m_txtText1)->setFont(toQFont(font));
}

Font MainWindow::textFont(bool wrapped) const {
    return fromQFont((wrapped ? m_txtTextWW : m_txtText1)->font());
}

void MainWindow::endSession() {
    if (onClosed)
        onClosed();
    hide();
}

void MainWindow::bringToFront() {
    raise();
    activateWindow();
}

void MainWindow::processEvents() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::powerButtonChanged(int index) {
    if (const auto button = m_session->services().oPowerButtons.Item(index + 1))
        m_powerButtons->showButton(index, *button);
}

bool MainWindow::interrupted() {
    // Esc lies in the queue of events; while the guard lives no other key or click gets through.
    const auto guard = m_escape.guard();
    QCoreApplication::processEvents();
    return m_escape.escapePressed();
}

} // namespace tolvo
