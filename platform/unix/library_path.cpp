// SPDX-License-Identifier: MIT
#include "platform/library_path.h"

#include <QFile>

namespace tolvo {

QByteArray libraryPath(const QString &path) {
    return QFile::encodeName(path);
}

} // namespace tolvo
