// SPDX-License-Identifier: MIT
#include "base/application.h"

namespace tolvo {

QString applicationTitle() {
    return QStringLiteral("Tolvo");
}

QString statisticsTree() {
    return applicationTitle() + QStringLiteral("-Stats");
}

QString applicationVersion() {
    return applicationVersionMajorMinor() + u'.' + applicationRevision();
}

QString applicationVersionMajorMinor() {
    return QStringLiteral("%1.%2").arg(TOLVO_VERSION_MAJOR).arg(TOLVO_VERSION_MINOR);
}

QString applicationRevision() {
    return QString::number(TOLVO_VERSION_REVISION);
}

} // namespace tolvo
