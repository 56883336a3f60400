// SPDX-License-Identifier: MIT
// Keeps the clipboard's text alive behind the end of the program.
//
// Under X11 and Wayland a clipboard dies with its owner, and yet the command that started the program must
// return when the session is over. So the program forks before anything of the window system exists: the
// child is the session and, after it, the clipboard's owner without a window; the parent only waits and ends
// as the session ends.
#pragma once

#include <functional>
#include <vector>

namespace tolvo {

/// The session's end, as the session sees it.
class KeeperSession {
  public:
    /// `pipe` leads to the waiting parent, -1 without one; `inherited` are the descriptors above 2 that were
    /// open when the program began.
    KeeperSession(int pipe, std::vector<int> inherited);
    ~KeeperSession();
    KeeperSession(const KeeperSession &) = delete;
    KeeperSession &operator=(const KeeperSession &) = delete;

    /// The session is over, with all that it had to say: leaves the terminal and lets the command that
    /// started the program return with the exit code. What happens after that is seen by nobody.
    void sessionOver(int exitCode);

    /// Serves the clipboard's text until another program takes the clipboard; returns at once if this program
    /// does not own it, and before sessionOver. Needs the QGuiApplication, and no window.
    void keepClipboardUntilTaken();

  private:
    int m_pipe;
    std::vector<int> m_inherited;
    bool m_alone = false; ///< nobody waits for this process any more
};

/// Runs a session in a child of this process and returns in the child with the session's result. The parent
/// does not return: it passes TERM, INT and HUP on and ends with the session's exit code, or by its signal if
/// the session crashed. Call it first in main: no thread and no QCoreApplication may exist. Where the process
/// can't be split, the session runs all the same and the text dies with it.
int runAsClipboardKeeper(const std::function<int(KeeperSession &)> &session);

} // namespace tolvo
