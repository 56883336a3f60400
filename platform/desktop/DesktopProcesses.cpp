// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopProcesses.h"

#include <QDesktopServices>
#include <QDir>
#include <QUrl>

namespace tolvo {

bool DesktopProcesses::open(const QString &address) {
    return QDesktopServices::openUrl(QUrl::fromUserInput(address, QDir::currentPath()));
}

} // namespace tolvo
