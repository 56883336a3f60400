// SPDX-License-Identifier: MIT
#include "platform/special_folders.h"

#include <array>
#include <windows.h>

#include <shlobj.h>

namespace tolvo {

QString GetSpecialFolder(int folder) {
    std::array<wchar_t, 512> path{};
    if (SHGetFolderPathW(nullptr, folder, nullptr, SHGFP_TYPE_CURRENT, path.data()) != S_OK)
        return {};
    return QString::fromWCharArray(path.data());
}

QString GetDocumentsFolder() {
    return GetSpecialFolder(specialFolder::documents);
}

} // namespace tolvo
