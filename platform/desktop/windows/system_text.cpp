// SPDX-License-Identifier: MIT
#include "platform/desktop/windows/system_text.h"

#include "base/failure.h"
#include "platform/desktop/clipboard_ways.h"
#include "platform/desktop/windows/OpenClipboard.h"

namespace tolvo {

namespace {

constexpr int outOfMemory = 7; // the failure's number

/// A window that no one sees: a clipboard without an owner takes no text.
class OwnerWindow {
  public:
    OwnerWindow()
        : handle(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr)) {
    }
    ~OwnerWindow() { DestroyWindow(handle); }
    OwnerWindow(const OwnerWindow &) = delete;
    OwnerWindow &operator=(const OwnerWindow &) = delete;

    const HWND handle;
};

/// The text as the clipboard takes it: with a NUL at its end, in memory of the system.
HGLOBAL systemMemory(const QString &text) {
    const std::size_t bytes = static_cast<std::size_t>(text.size() + 1) * sizeof(QChar);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, bytes);
    if (memory == nullptr)
        return nullptr;
    CopyMemory(GlobalLock(memory), text.utf16(), bytes);
    GlobalUnlock(memory);
    return memory;
}

} // namespace

void putSystemText(const QString &text, int patience) {
    const OwnerWindow owner;
    const OpenClipboard clipboard(owner.handle, patience);
    if (!clipboard.isOpen() || !EmptyClipboard())
        throw Failure(clipboardNotOpened, QStringLiteral("Another program is holding the clipboard open. "
                                                         "Please try again"));
    if (text.isEmpty())
        return;
    const HGLOBAL memory = systemMemory(text);
    if (memory == nullptr || SetClipboardData(CF_UNICODETEXT, memory) == nullptr) {
        GlobalFree(memory);
        throw Failure(outOfMemory, QStringLiteral("The clipboard has no room for the text"));
    }
}

} // namespace tolvo
