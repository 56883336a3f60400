// SPDX-License-Identifier: MIT
#include "platform/file_types.h"

#include <windows.h>

namespace tolvo {

std::optional<bool> isRegisteredType(const QString &extension) {
    const std::wstring name = (u'.' + extension).toStdWString();
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

} // namespace tolvo
