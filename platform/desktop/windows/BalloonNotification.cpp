// SPDX-License-Identifier: MIT
#include "platform/desktop/windows/BalloonNotification.h"

#include <QTimer>

namespace tolvo {

namespace {

constexpr UINT balloonMessage = WM_APP;
constexpr UINT iconOfProgram = 1; // its resource
constexpr int readingTime = 7000; // milliseconds

/// Cuts a text that is too long.
template <std::size_t size>
void copyText(WCHAR (&to)[size], const QString &text) {
    const QString fits = text.left(size - 1);
    to[fits.toWCharArray(to)] = 0;
}

NOTIFYICONDATAW iconOf(HWND window) {
    NOTIFYICONDATAW icon{};
    icon.cbSize = sizeof icon;
    icon.hWnd = window;
    icon.uVersion = NOTIFYICON_VERSION_4;
    return icon;
}

} // namespace

BalloonNotification::~BalloonNotification() {
    remove();
}

bool BalloonNotification::show(const QString &title, const QString &text) {
    m_window = CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrW(m_window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrW(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&BalloonNotification::receive));

    NOTIFYICONDATAW icon = iconOf(m_window);
    icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP | NIF_SHOWTIP | NIF_INFO;
    icon.uCallbackMessage = balloonMessage;
    icon.hIcon = LoadIconW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(iconOfProgram));
    icon.dwInfoFlags = NIIF_USER;
    copyText(icon.szTip, title);
    copyText(icon.szInfoTitle, title);
    copyText(icon.szInfo, onUndo ? text + QStringLiteral("\nClick here to undo.") : text);
    if (!Shell_NotifyIconW(NIM_ADD, &icon)) {
        DestroyWindow(m_window);
        m_window = nullptr;
        return false;
    }
    Shell_NotifyIconW(NIM_SETVERSION, &icon);
    m_sequence = GetClipboardSequenceNumber();
    return true;
}

void BalloonNotification::stayUntilRead() {
    if (m_window == nullptr)
        return;
    QTimer::singleShot(readingTime, &m_loop, &QEventLoop::quit);
    m_loop.exec();
    if (m_clicked && onUndo && GetClipboardSequenceNumber() == m_sequence)
        onUndo();
}

void BalloonNotification::withdrawUndo() {
    onUndo = nullptr;
    remove();
}

LRESULT CALLBACK BalloonNotification::receive(HWND window, UINT message, WPARAM first, LPARAM second) {
    if (message != balloonMessage)
        return DefWindowProcW(window, message, first, second);
    auto &balloon = *reinterpret_cast<BalloonNotification *>(GetWindowLongPtrW(window, GWLP_USERDATA));
    switch (LOWORD(second)) {
    case NIN_BALLOONUSERCLICK:
    case NIN_SELECT: // the icon, shown as long as the balloon
    case NIN_KEYSELECT:
        balloon.m_clicked = true;
        [[fallthrough]];
    case NIN_BALLOONTIMEOUT:
    case NIN_BALLOONHIDE:
        balloon.m_loop.quit();
        break;
    default:
        break;
    }
    return 0;
}

void BalloonNotification::remove() {
    if (m_window == nullptr)
        return;
    NOTIFYICONDATAW icon = iconOf(m_window);
    Shell_NotifyIconW(NIM_DELETE, &icon);
    DestroyWindow(m_window);
    m_window = nullptr;
}

std::unique_ptr<Notification> desktopNotification() {
    return std::make_unique<BalloonNotification>();
}

} // namespace tolvo
