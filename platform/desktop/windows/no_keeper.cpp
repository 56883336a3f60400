// SPDX-License-Identifier: MIT
// The clipboard of Windows keeps a text by itself, and nothing waits for a program with windows: the session
// runs in this process and ends with it.
#include "platform/desktop/clipboard_keeper.h"

#include <windows.h>

#include <ole2.h>

namespace tolvo {

KeeperSession::KeeperSession(int pipe, std::vector<int> inherited)
    : m_pipe(pipe), m_inherited(std::move(inherited)) {
}

KeeperSession::~KeeperSession() = default;

void KeeperSession::sessionOver(int) {
    m_alone = true;
}

void KeeperSession::keepClipboardUntilTaken() {
    if (m_alone)
        OleFlushClipboard(); // what was copied out of a text box
}

int runAsClipboardKeeper(const std::function<int(KeeperSession &)> &session) {
    KeeperSession keeper(-1, {});
    return session(keeper);
}

} // namespace tolvo
