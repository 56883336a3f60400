// SPDX-License-Identifier: MIT
#pragma once

#include <QDeadlineTimer>

#include <windows.h>

namespace tolvo {

/// The system's clipboard, open for this program alone as long as this object lives. Another program that
/// holds it open is waited for.
class OpenClipboard {
  public:
    /// `owner` is the window that will own what is put on the clipboard; none to read.
    OpenClipboard(HWND owner, int milliseconds) {
        constexpr DWORD pause = 5; // milliseconds
        const QDeadlineTimer end(milliseconds);
        m_open = ::OpenClipboard(owner) != 0;
        while (!m_open && !end.hasExpired()) {
            Sleep(pause);
            m_open = ::OpenClipboard(owner) != 0;
        }
    }
    ~OpenClipboard() {
        if (m_open)
            CloseClipboard();
    }
    OpenClipboard(const OpenClipboard &) = delete;
    OpenClipboard &operator=(const OpenClipboard &) = delete;

    [[nodiscard]] bool isOpen() const { return m_open; }

  private:
    bool m_open = false;
};

} // namespace tolvo
