// SPDX-License-Identifier: MIT
#include "platform/desktop/clipboard_ways.h"

#include "base/failure.h"
#include "platform/desktop/windows/OpenClipboard.h"
#include "platform/desktop/windows/WindowsTextTransfer.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <windows.h>

namespace tolvo {

namespace {

constexpr int writeMilliseconds = 1000; // how long a clipboard that another program holds open is tried
constexpr int outOfMemory = 7;          // the failure's number

/// Another platform plugin has a clipboard of its own.
bool isSystemClipboard() {
    return QGuiApplication::platformName() == QStringLiteral("windows");
}

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

bool hasClipboard() {
    return true;
}

bool clipboardFollowsFocus() {
    return false;
}

bool clipboardNeedsInput() {
    return false;
}

bool clipboardOffers() {
    return isSystemClipboard() ? CountClipboardFormats() > 0
                               : !QGuiApplication::clipboard()->mimeData()->formats().isEmpty();
}

void waitForFirstOffer() {
}

std::unique_ptr<TextTransfer> transferOf(TextTransfer::Selection selection) {
    if (!isSystemClipboard() || selection == TextTransfer::Selection::Primary)
        return nullptr;
    return std::make_unique<WindowsTextTransfer>();
}

void putOnClipboard(const QString &text) {
    if (!isSystemClipboard()) {
        QGuiApplication::clipboard()->setText(text);
        return;
    }
    const OwnerWindow owner;
    const OpenClipboard clipboard(owner.handle, writeMilliseconds);
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
