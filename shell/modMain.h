// SPDX-License-Identifier: MIT
// One run of the program: start, session, end. Knows no windows: the desktop program and the tests hand in
// what shows the session.
#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/processes.h"
#include "platform/sound.h"
#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/catalogue.h"
#include "shell/cSound.h"
#include "shell/cToolbox.h"
#include "shell/frmMain.h"
#include "text/file_extensions.h"

#include <QList>
#include <QRect>
#include <QString>
#include <functional>
#include <memory>

namespace tolvo {

/// What a run needs of its platform. All outlive it.
struct RunServices {
    SettingsStore &store;
    Clipboard &clipboard;
    MessageBoxes &boxes;
    SoundPlayer &sound;
    Processes &processes;
    Clock &clock;
    FileExtensions &extensions;
    QString programFolder;            ///< where the companions lie
    QString dataFolder;               ///< where Tools.dat, OtherWords.txt and scrbar.wav lie
    const SpellingServices &spelling; ///< what a spelling check is built on
};

/// The window side of a run: the main window and what it opens. Made by a SessionWindowFactory when the run
/// reaches that step.
class SessionWindow {
  public:
    virtual ~SessionWindow() = default;

    /// The box without word wrap and the one with it; one of them shows the text, the other is empty.
    [[nodiscard]] virtual TextBox &txtText1() = 0;
    [[nodiscard]] virtual TextBox &txtTextWW() = 0;
    [[nodiscard]] virtual SessionView &view() = 0;
    [[nodiscard]] virtual SessionDialogs &dialogs() = 0;

    /// Called as soon as the session exists: from here on events may reach it. The panel of tools is still
    /// empty. `toolbox` gets its hooks here; its sound is set by the run.
    virtual void attach(frmMain &session, cToolbox &toolbox) = 0;
    /// True if the clipboard's text is to be taken once the window is shown: the platform gives it only to a
    /// window that has the focus, or its owner lets us wait.
    [[nodiscard]] virtual bool takesClipboardLater() { return false; }
    /// Calls with the areas of the screen that nothing should cover, the most important last, as soon as the
    /// window has its place: the main window and its text.
    virtual void whenPlaced(const std::function<void(const QList<QRect> &)> &tell) { tell({}); }
    /// Shows the main window and calls `onceShown` before the user can type; returns when the session is over
    /// (frmMain::bSessionOver), whether the window was hidden or closed.
    virtual void showModal(const std::function<void()> &onceShown) = 0;
    /// Unloads every form that is still loaded; each saves its own section of the store.
    virtual void unloadForms() = 0;
};

using SessionWindowFactory = std::function<std::unique_ptr<SessionWindow>()>;

/// The run and what lives as long as it does.
class modMain {
  public:
    modMain(const RunServices &services, SessionWindowFactory makeWindow);
    ~modMain();

    /// The whole run. Returns the exit code of the process: 0, or 1 after a failure, which has been reported.
    int Main();

    // What lives for the whole run

    Catalogue oTools;
    CPowerButtonMethods oPBMethods;
    cToolbox oToolbox;
    cSound oSound;
    CPowerButtonCollection oPowerButtons;

  private:
    void start();
    void createSession();
    void showTips();
    void countStart();
    /// What is left of the start once the main window is shown.
    void windowShown();
    void finish();
    void sendStatistics();

    RunServices m_services;
    SessionWindowFactory m_makeWindow;
    std::unique_ptr<SessionWindow> m_window;
    std::unique_ptr<frmMain> m_session;
    bool m_clipboardLater = false; ///< its text comes once the window is shown
};

} // namespace tolvo
