// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopProcesses.h"

#include "base/failure.h"

#include <QDesktopServices>
#include <QDir>
#include <QStandardPaths>
#include <QUrl>

namespace tolvo {

bool DesktopProcesses::open(const QString &address) {
    const QUrl url = QUrl::fromUserInput(address, QDir::currentPath());
    // The toolkit would pass our standard streams on to a browser that outlives this program.
    const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    if (opener.isEmpty())
        return QDesktopServices::openUrl(url);
    try {
        start(opener, {url.toString(QUrl::FullyEncoded)}, WindowMode::Normal);
        return true;
    } catch (const Failure &) {
        return false;
    }
}

} // namespace tolvo
