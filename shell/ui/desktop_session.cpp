// SPDX-License-Identifier: MIT
#include "shell/ui/desktop_session.h"

#include "base/paths.h"
#include "platform/desktop/DesktopClipboard.h"
#include "shell/empty_text.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/power_button_hint.h"
#include "shell/ui/power_button_menu.h"
#include "shell/ui/trouble_watch.h"
#include "shell/ui/window_memory.h"
#include "widgets/motion.h"

#include <QApplication>
#include <QTimer>
#include <utility>

namespace tolvo {

namespace {

constexpr int timeOfACommit = 200; // milliseconds, with a slow disk
constexpr int timeOfPlacing = 300; // milliseconds

} // namespace

DesktopSession::DesktopSession(const RunServices &services, DesktopClipboard &clipboard, EscapeWatch &escape)
    : m_services(services), m_clipboard(clipboard), m_window(std::make_unique<MainWindow>(escape)),
      m_dialogs(services, *m_window) {
    for (PlainTextBox *box : {&m_window->txtText1(), &m_window->txtTextWW()}) {
        box->setLineEnds(clipboard.lineEnds());
        box->readForPaste = [this](bool selection) {
            return m_session ? m_session->clipboardText(selection) : std::nullopt;
        };
    }
    const auto showHint = [this](ClipboardContent held) { m_window->showEmptyTextHint(emptyTextHint(held)); };
    showHint(ClipboardContent::Text);
    clipboard.onTaken = [this, showHint](ClipboardContent held) {
        showHint(held);
        if (m_troubles)
            m_troubles->freshText();
    };
    clipboard.onWaiting = [this](bool waiting) {
        if (m_session)
            m_session->setStatus(waiting ? QStringLiteral("Waiting for the clipboard... Esc ends the wait")
                                         : QString());
    };
    m_window->onClosed = [this] {
        m_lastPlace = placeOf(*m_window);
        m_loop.quit();
    };
    m_window->onActivated = [this] {
        takeOverPowerButtons();
        if (m_troubles)
            m_troubles->obeyOptions();
    };
}

DesktopSession::~DesktopSession() = default;

TextBox &DesktopSession::txtText1() {
    return m_window->txtText1();
}

TextBox &DesktopSession::txtTextWW() {
    return m_window->txtTextWW();
}

SessionView &DesktopSession::view() {
    return *m_window;
}

void DesktopSession::attach(frmMain &session, cToolbox &toolbox) {
    m_session = &session;
    m_seenChanges = m_services.store.changesByOthers();
    m_window->attach(session, toolbox, m_clipboard.lineEnds());
    m_powerButtonMenu = std::make_unique<PowerButtonMenu>(
        session, *m_window, sAppPath(m_services.dataFolder) + QStringLiteral("PowerButtons"));
    m_window->onButtonFileDropped = [this](int index, const QString &path) {
        m_powerButtonMenu->loadFile(path, index + 1);
    };
    m_window->toolFinder().attach(session,
                                  sAppPath(m_services.dataFolder) + QStringLiteral("OtherWords.txt"));
    m_dialogs.attach(session);
    toolbox.setHooks({.rowsChanged = [this, &toolbox] { m_window->panel().showRows(toolbox); },
                      .delay =
                          [this](int milliseconds) {
                              if (wantsMotion(*m_window))
                                  MainWindow::delay(milliseconds);
                          }});
}

bool DesktopSession::takesClipboardLater() {
    return !m_clipboard.comesAtOnce();
}

/// PowerButtons that another run defines show at once.
void DesktopSession::watchStore() {
    // The file changes a moment before what was written to it can be read.
    m_storeChanged.setSingleShot(true);
    m_storeChanged.setInterval(timeOfACommit);
    QObject::connect(&m_storeWatch, &QFileSystemWatcher::fileChanged, &m_storeChanged,
                     [this] { m_storeChanged.start(); });
    QObject::connect(&m_storeChanged, &QTimer::timeout, m_window.get(), [this] { takeOverPowerButtons(); });
    const QString file = m_services.store.touchedFile();
    if (!file.isEmpty())
        m_storeWatch.addPath(file);
    takeOverPowerButtons();
}

void DesktopSession::takeOverPowerButtons() {
    // The dialog may be the editor at work on a button. The main window becomes active after it.
    if (m_session->bSessionOver || QApplication::activeModalWidget() != nullptr)
        return;
    m_session->guarded(u"takeOverPowerButtons", [this] {
        const qint64 changes = m_services.store.changesByOthers();
        if (std::exchange(m_seenChanges, changes) != changes)
            m_session->refreshPowerButtons();
    });
    m_session->guarded(u"runToolOfTip", [this] { runToolOfTip(); });
}

/// A tool that was clicked in the tips of this run.
void DesktopSession::runToolOfTip() {
    const QString asked = get(m_services.store, settingKeys.hints.toolOfTip);
    const QString run = QString::number(QCoreApplication::applicationPid()) + u' ';
    if (!asked.startsWith(run))
        return;
    set(m_services.store, settingKeys.hints.toolOfTip, QString());
    const QString token = asked.sliced(run.size());
    if (!m_session->services().oTools.tool(token))
        return;
    // The command is one of its own, after the present one.
    QTimer::singleShot(0, m_window.get(), [this, token] {
        m_window->bringToFront();
        m_session->bRightButton = false;
        m_session->ToolDespatcher(token);
    });
}

void DesktopSession::bringBackWindow() {
    const SettingsStore &store = m_services.store;
    bringBack(*m_window, store, settingKeys.windows.main);
    if (const int width = get(store, settingKeys.windows.panelWidth, presentScreen()); width > 0)
        m_window->setPanelWidth(width);
    m_panelWidth = m_window->panelWidth();
}

void DesktopSession::keepWindow() {
    keepPlace(m_services.store, settingKeys.windows.main, m_lastPlace);
    if (m_window->panelWidth() != m_panelWidth)
        set(m_services.store, settingKeys.windows.panelWidth, m_window->panelWidth(), presentScreen());
}

void DesktopSession::showModal(const std::function<void()> &onceShown) {
    m_session->guarded(u"bringBackWindow", [this] { bringBackWindow(); });
    m_session->guarded(u"powerButtonHint", [this] {
        m_powerButtonHint = std::make_unique<PowerButtonHint>(*m_session, *m_window);
        m_window->onPowerButtonChanged = [this] { m_powerButtonHint->refresh(); };
    });
    m_window->show();
    m_window->bringToFront();
    onceShown();
    QTimer::singleShot(0, m_window.get(), [this] {
        watchStore();
        m_troubles = std::make_unique<TroubleWatch>(*m_session, *m_window);
        if (!m_buttonFile.isEmpty())
            m_powerButtonMenu->loadFile(m_buttonFile);
    });
    if (!m_session->bSessionOver)
        m_loop.exec();
    m_troubles.reset();
    m_window->onPowerButtonChanged = nullptr;
    m_powerButtonHint.reset();
    m_window->hide();
    m_session->guarded(u"keepWindow", [this] { keepWindow(); });
}

void DesktopSession::whenPlaced(const std::function<void(const QList<QRect> &)> &tell) {
    // The window manager places the window some time after it was shown.
    QTimer::singleShot(timeOfPlacing, m_window.get(), [this, tell] {
        const QWidget &text = m_window->shownTextBox();
        tell({m_window->frameGeometry(), QRect(text.mapToGlobal(QPoint()), text.size())});
    });
}

void DesktopSession::unloadForms() {
    m_dialogs.unload();
}

} // namespace tolvo
