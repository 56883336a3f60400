// SPDX-License-Identifier: MIT
#include "platform/user_folders.h"

#include "platform/special_folders.h"

#include <QDir>

#include <windows.h>

#include <shlobj.h>

namespace tolvo {

QString userSettingsFolder() {
    return QDir::fromNativeSeparators(GetSpecialFolder(CSIDL_APPDATA)) + QStringLiteral("/Tolvo");
}

QString userDataFolder() {
    return userSettingsFolder();
}

} // namespace tolvo
