// SPDX-License-Identifier: MIT
// The window side of one run: the main window, and the dialogs that it opens, each made at its first use.
#pragma once

#include "shell/modMain.h"
#include "shell/ui/desktop_dialogs.h"

#include <QEventLoop>
#include <QFileSystemWatcher>
#include <QTimer>
#include <memory>

namespace tolvo {

class DesktopClipboard;
class EscapeWatch;
class MainWindow;
class dlgPreferences;

class DesktopSession : public SessionWindow, private SessionView, private SessionWindows {
  public:
    /// `escape` notes the key Esc during long searches and web requests.
    DesktopSession(const RunServices &services, DesktopClipboard &clipboard, EscapeWatch &escape);
    ~DesktopSession() override;

    // SessionWindow

    [[nodiscard]] TextBox &txtText1() override;
    [[nodiscard]] TextBox &txtTextWW() override;
    [[nodiscard]] SearchResults &searchResults() override;
    [[nodiscard]] SessionWindows &windows() override { return *this; }
    [[nodiscard]] SessionView &view() override { return *this; }
    [[nodiscard]] SpellingWalk &spellingWalk() override { return m_dialogs.spellingWalk(); }
    [[nodiscard]] LanguageChooser &languages() override { return m_dialogs.languages(); }
    void attach(frmMain &session, cToolbox &toolbox) override;
    void initIcons() override;
    [[nodiscard]] bool takesClipboardLater() override;
    void showModal(const std::function<void()> &onceShown) override;
    void unloadForms() override;

  private:
    // SessionView

    void statusChanged(const QString &text) override;
    void undoRedoChanged(bool undoEnabled, bool redoEnabled) override;
    void showTextBox(bool wrapped) override;
    void setTextFont(bool wrapped, const Font &font) override;
    [[nodiscard]] Font textFont(bool wrapped) const override;
    void hide() override;
    void bringToFront() override;
    void processEvents() override;
    void powerButtonChanged(int index) override;
    [[nodiscard]] bool interrupted() override;

    // SessionWindows

    [[nodiscard]] CloseAnswer confirmClose(const QString &prompt) override;
    void showOptions() override;
    void showAbout() override;
    void showStatistics(const TextStatistics &statistics) override;
    void editPowerButton(int index) override;
    [[nodiscard]] SearchWindow &search() override { return m_dialogs.search(); }
    [[nodiscard]] ToolDialogs &toolDialogs() override { return m_dialogs; }

    void watchStore();
    void takeOverPowerButtons();

    RunServices m_services;
    DesktopClipboard &m_clipboard;
    EscapeWatch &m_escape;
    std::unique_ptr<MainWindow> m_window;
    DesktopDialogs m_dialogs;
    frmMain *m_session = nullptr;
    QEventLoop m_loop;
    QFileSystemWatcher m_storeWatch;
    QTimer m_storeChanged;
    qint64 m_seenChanges = 0; ///< of the store by others, as of the last look at the PowerButtons
};

} // namespace tolvo
