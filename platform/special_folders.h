// SPDX-License-Identifier: MIT
// modSpecialFolders: the user's folders on the desktop.
#pragma once

#include <QString>

namespace tolvo {

/// Numbers of the folders that GetSpecialFolder knows.
namespace specialFolder {
inline constexpr int desktop = 0;
inline constexpr int documents = 5;
inline constexpr int music = 13;
inline constexpr int videos = 14;
inline constexpr int pictures = 39;
inline constexpr int home = 40;
} // namespace specialFolder

/// The path of a special folder, without a separator at its end; empty for any other number.
[[nodiscard]] QString GetSpecialFolder(int folder);

/// The folder of the user's documents.
[[nodiscard]] QString GetDocumentsFolder();

} // namespace tolvo
