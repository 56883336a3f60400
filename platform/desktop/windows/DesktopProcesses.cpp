// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopProcesses.h"

#include <QDir>
#include <QUrl>

#include <windows.h>

#include <shellapi.h>

namespace tolvo {

bool DesktopProcesses::open(const QString &address) {
    const QUrl url = QUrl::fromUserInput(address, QDir::currentPath());
    const QString target =
        url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()) : url.toString(QUrl::FullyEncoded);
    constexpr INT_PTR lastFailure = 32;
    const HINSTANCE answer =
        ShellExecuteW(nullptr, L"open", target.toStdWString().c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    return reinterpret_cast<INT_PTR>(answer) > lastFailure;
}

} // namespace tolvo
