// SPDX-License-Identifier: MIT
// Keeps the clipboard's text alive after the end of the program.
//
// Under X11 and Wayland a clipboard's text is lost when its owner ends, yet the command that started the
// program must return when the session is over. So the program forks before it connects to the window system:
// the child runs the session and then stays, without a window, as the clipboard's owner; the parent waits for
// the end of the session and ends in the same way.
#pragma once

#include <functional>
#include <vector>

namespace tolvo {

/// The end of a session, for the session to call.
class KeeperSession {
  public:
    /// `pipe` leads to the waiting parent, -1 without one; `inherited` are the descriptors above 2 that were
    /// open when the program began.
    KeeperSession(int pipe, std::vector<int> inherited);
    ~KeeperSession();
    KeeperSession(const KeeperSession &) = delete;
    KeeperSession &operator=(const KeeperSession &) = delete;

    /// Ends the session: leaves the terminal and lets the command that started the program return with the
    /// exit code. Nothing that happens after that is visible.
    void sessionOver(int exitCode);

    /// Serves the clipboard's text until another program takes the clipboard; returns at once if this program
    /// does not own it, and before sessionOver. Needs the QGuiApplication, and no window.
    void keepClipboardUntilTaken();

  private:
    int m_pipe;
    std::vector<int> m_inherited;
    bool m_alone = false; ///< no process waits for this one
};

/// Runs a session in a child of this process and returns in the child with the session's result. The parent
/// does not return: it passes TERM, INT and HUP on and ends with the session's exit code, or by its signal if
/// the session crashed. Call it first in main: no thread and no QCoreApplication may exist. Where the process
/// can't fork, the session runs all the same and the text is lost at its end.
int runAsClipboardKeeper(const std::function<int(KeeperSession &)> &session);

} // namespace tolvo
