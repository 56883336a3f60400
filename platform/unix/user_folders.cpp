// SPDX-License-Identifier: MIT
#include "platform/user_folders.h"

#include <QStandardPaths>

namespace tolvo {

namespace {

QString below(QStandardPaths::StandardLocation location) {
    return QStandardPaths::writableLocation(location) + QStringLiteral("/tolvo");
}

} // namespace

QString userSettingsFolder() {
    return below(QStandardPaths::GenericConfigLocation);
}

QString userDataFolder() {
    return below(QStandardPaths::GenericDataLocation);
}

} // namespace tolvo
