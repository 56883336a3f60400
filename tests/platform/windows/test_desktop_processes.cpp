// SPDX-License-Identifier: MIT
#include "platform/desktop/windows/OpenClipboard.h"
#include "platform/desktop/windows/WindowsTextTransfer.h"
#include "tests/ui/user.h"

#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

/// Another window, in a thread of its own, that holds the clipboard open for a time and leaves a text on it.
class Holder {
  public:
    explicit Holder(DWORD milliseconds) : m_thread([this, milliseconds] { hold(milliseconds); }) {
        while (!m_holds)
            Sleep(1);
    }
    ~Holder() { m_thread.join(); }
    Holder(const Holder &) = delete;
    Holder &operator=(const Holder &) = delete;

  private:
    void hold(DWORD milliseconds) {
        const HWND window =
            CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
        {
            const OpenClipboard clipboard(window, 1000);
            EmptyClipboard();
            static constexpr wchar_t text[] = L"a\r\nb";
            const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, sizeof text);
            CopyMemory(GlobalLock(memory), text, sizeof text);
            GlobalUnlock(memory);
            SetClipboardData(CF_UNICODETEXT, memory);
            m_holds = true;
            Sleep(milliseconds);
        }
        DestroyWindow(window);
    }

    std::atomic<bool> m_holds = false;
    std::thread m_thread;
};

TEST(WindowsClipboard, IsTriedAgainWhileAnotherProgramHoldsItOpen) {
    const Holder holder(400);
    WindowsTextTransfer transfer;
    EXPECT_FALSE(transfer.advance(50));
    EXPECT_TRUE(transfer.advance(5000));
    EXPECT_EQ(transfer.text(), u"a\r\nb"_s) << "as it stands";
}

} // namespace
} // namespace tolvo
