// SPDX-License-Identifier: MIT
// What the main window shows of the session.
#include "platform/desktop/EscapeWatch.h"
#include "platform/desktop/font_conversion.h"
#include "shell/changed_places.h"
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/change_view.h"
#include "shell/ui/history_menus.h"
#include "shell/ui/status_bar.h"
#include "shell/ui/text_view.h"

#include <QAction>
#include <QCoreApplication>
#include <QPushButton>
#include <QToolButton>

namespace tolvo {

void MainWindow::statusChanged(const QString &text) {
    m_statusBar->showStatus(text);
    if (m_textView)
        m_textView->refresh();
}

void MainWindow::hintChanged(const QString &text) {
    m_statusBar->showHint(text);
}

void MainWindow::toolChangedText(const ToolChange &change) {
    hintChanged(placesText(m_changeView->showPlaces(change)));
}

void MainWindow::showTextBefore(const ToolChange *change) {
    if (m_changeView->beginTextBefore(change) && change == nullptr)
        hintChanged(QStringLiteral("No tool has changed the text yet"));
}

void MainWindow::showEmptyTextHint(const QString &hint) {
    for (PlainTextBox *box : {m_txtText1, m_txtTextWW})
        box->setPlaceholderText(hint);
    if (m_textView)
        m_textView->refresh();
}

void MainWindow::undoRedoChanged(bool undoEnabled, bool redoEnabled) {
    m_cmdUndo->setEnabled(undoEnabled);
    if ((m_cmdRedo->hasFocus() || m_redoArrow->hasFocus()) && !redoEnabled)
        m_cmdUndo->setFocus(); // disabled, it would leave the focus to whatever comes next
    m_cmdRedo->setEnabled(redoEnabled);
    m_undoAction->setEnabled(undoEnabled);
    m_redoAction->setEnabled(redoEnabled);
}

void MainWindow::showTextBox(bool wrapped) {
    // Show before hide: a window without any text box would give the focus to a button for a moment.
    (wrapped ? m_txtTextWW : m_txtText1)->show();
    (wrapped ? m_txtText1 : m_txtTextWW)->hide();
    // All that holds them: the size that a start brings back may be the smallest with one of them.
    for (QWidget *holder = m_textArea; holder != this; holder = holder->parentWidget())
        holder->updateGeometry();
    m_imgWordwrap->setChecked(wrapped);
}

void MainWindow::setTextFont(bool wrapped, const Font &font) {
    (wrapped ? m_txtTextWW : m_txtText1)->setTextFont(toQFont(font));
}

Font MainWindow::textFont(bool wrapped) const {
    return fromQFont((wrapped ? m_txtTextWW : m_txtText1)->textFont());
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
    if (onPowerButtonChanged)
        onPowerButtonChanged();
}

bool MainWindow::interrupted() {
    // Esc lies in the queue of events; while the guard lives no other key or click gets through.
    const auto guard = m_escape.guard();
    QCoreApplication::processEvents();
    return m_escape.escapePressed();
}

} // namespace tolvo
