// SPDX-License-Identifier: MIT
#include "shell/ui/MainWindow.h"

#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "shell/ui/history_menus.h"
#include "shell/ui/names_under_icons.h"
#include "shell/ui/text_view.h"
#include "shell/ui/window_size.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QTimer>

namespace tolvo {

void MainWindow::attach(frmMain &session, cToolbox &toolbox, const ClipboardLineEnds &lineEnds) {
    m_session = &session;
    m_toolbox = &toolbox;
    m_keys.emplace(session);
    m_textView = new TextView(session, {m_txtText1, m_txtTextWW}, *m_statusBar, lineEnds);
    using Choice = NamesUnderIcons::Choice;
    SettingsStore &store = session.services().store;
    m_iconNames->setChoice(static_cast<Choice>(get(store, settingKeys.view.iconNames)));
    m_iconNames->onChosen = [&store](Choice choice) {
        set(store, settingKeys.view.iconNames, static_cast<int>(choice));
    };
    connectAltLetters();
    watchButtons();
    for (PlainTextBox *box : {m_txtText1, m_txtTextWW}) {
        box->onFilesDropped = [this](const QStringList &paths) { m_session->takeFiles(paths); };
        box->onCopied = [this] { m_session->history().noteCopy(textState(m_session->txtCurrent())); };
    }
    new HistoryMenus(session, *m_undoArrow, *m_redoArrow, this);
    m_panel->onClick = [this](int row, bool right) {
        m_session->bRightButton = right;
        m_session->lblToolbox_Click(*m_toolbox, row);
    };
    m_powerButtons->onToolDropped = [this](int index, const QString &token) {
        m_session->addToPowerButton(index, token);
    };
    m_powerButtons->onFileDropped = [this](int index, const QString &path) {
        if (onButtonFileDropped)
            onButtonFileDropped(index, path);
    };
    m_powerButtons->onClick = [this](int index, bool right) {
        m_session->bRightButton = right;
        m_session->imgPower_Click(index);
    };
}

PlainTextBox &MainWindow::shownTextBox() {
    return m_txtTextWW->isHidden() ? *m_txtText1 : *m_txtTextWW;
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
        if (!isFocusInDock())
            shownTextBox().setFocus();
        if (onActivated)
            onActivated();
    }
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible() && !isMinimized())
        keepSmallestSize(); // rows have folded
    return handled;
}

void MainWindow::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    if (isMinimized())
        return;
    keepSmallestSize();
}

void MainWindow::keepSmallestSize() {
    // While a window manager puts its frame around the window, the two sizes may be of different moments.
    const QSize frame = (frameGeometry().size() - size()).expandedTo({0, 0});
    setMinimumSize(minimumSizeHint().expandedTo(allowedOuterSize(QSize()) / twipsPerPixel - frame));
}

} // namespace tolvo
