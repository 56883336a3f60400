// SPDX-License-Identifier: MIT
#include "shell/ui/MainWindow.h"

#include "base/application.h"
#include "platform/desktop/plain_tool_tip.h"
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/ui/window_size.h"

#include <QAction>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

namespace tolvo {

void MainWindow::attach(frmMain &session, cToolbox &toolbox) {
    m_session = &session;
    m_toolbox = &toolbox;
    m_keys.emplace(session);
    connectAltLetters();
    m_panel->onClick = [this](int row, bool right) {
        m_session->bRightButton = right;
        m_session->lblToolbox_Click(*m_toolbox, row);
    };
    m_powerButtons->onClick = [this](int index, bool right) {
        m_session->bRightButton = right;
        m_session->imgPower_Click(index);
    };
}

PlainTextBox &MainWindow::shownTextBox() {
    return m_txtTextWW->isHidden() ? *m_txtText1 : *m_txtTextWW;
}

void MainWindow::showStatus(const QString &text) {
    m_status = text;
    showElidedStatus();
}

void MainWindow::showElidedStatus() {
    m_labStatus->setText(
        m_labStatus->fontMetrics().elidedText(m_status, Qt::ElideRight, m_labStatus->width()));
    m_labStatus->setToolTip(m_labStatus->text() == m_status ? QString() : plainToolTip(m_status));
    m_labStatus->setAccessibleName(m_status.isEmpty() ? tr("Status") : m_status);
}

void MainWindow::showUndoRedo(bool undoEnabled, bool redoEnabled) {
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

void MainWindow::delay(int milliseconds) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

void MainWindow::closeEvent(QCloseEvent *event) {
    bool mayGo = true;
    if (m_session && !m_session->bSessionOver) {
        mayGo = false;
        m_session->guarded(u"Form_QueryUnload", [&] { mayGo = m_session->queryUnload(); });
    }
    if (!mayGo) {
        event->ignore();
        return;
    }
    event->accept();
    if (onClosed)
        onClosed();
}

bool MainWindow::event(QEvent *event) {
    if (event->type() == QEvent::WindowActivate) {
        shownTextBox().setFocus();
        if (onActivated)
            onActivated();
    }
    return QWidget::event(event);
}

void MainWindow::changeEvent(QEvent *event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showElidedStatus();
    QWidget::changeEvent(event);
}

void MainWindow::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (isMinimized())
        return;
    const QSize frame = frameGeometry().size() - size();
    setMinimumSize(minimumSizeHint().expandedTo(allowedOuterSize(QSize()) / twipsPerPixel - frame));
    showElidedStatus();
}

} // namespace tolvo
