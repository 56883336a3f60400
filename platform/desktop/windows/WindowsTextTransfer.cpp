// SPDX-License-Identifier: MIT
#include "platform/desktop/windows/WindowsTextTransfer.h"

#include "platform/desktop/windows/OpenClipboard.h"

#include <algorithm>

namespace tolvo {

namespace {

/// The text of the clipboard that is open. Some programs leave out the NUL at the end.
QString unicodeText() {
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    const auto *units = memory == nullptr ? nullptr : static_cast<const wchar_t *>(GlobalLock(memory));
    if (units == nullptr)
        return {};
    const wchar_t *end = units + GlobalSize(memory) / sizeof(wchar_t);
    const QString text = QString::fromWCharArray(units, std::find(units, end, L'\0') - units);
    GlobalUnlock(memory);
    return text;
}

} // namespace

bool WindowsTextTransfer::advance(int milliseconds) {
    if (m_over)
        return true;
    const OpenClipboard clipboard(nullptr, milliseconds);
    if (clipboard.isOpen()) {
        m_text = unicodeText();
        m_over = true;
    }
    return m_over;
}

} // namespace tolvo
