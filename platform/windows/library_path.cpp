// SPDX-License-Identifier: MIT
#include "platform/library_path.h"

#include <QDir>
#include <QFileInfo>

namespace tolvo {

QByteArray libraryPath(const QString &path) {
    const QString whole = QDir::toNativeSeparators(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    const QString verbatim = QStringLiteral("\\\\?\\");
    if (whole.startsWith(verbatim))
        return whole.toUtf8();
    const QString share = QStringLiteral("\\\\");
    if (whole.startsWith(share))
        return (verbatim + QStringLiteral("UNC\\") + whole.sliced(share.size())).toUtf8();
    return (verbatim + whole).toUtf8();
}

} // namespace tolvo
