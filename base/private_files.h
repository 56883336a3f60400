// SPDX-License-Identifier: MIT
// Files and folders that are the user's alone.
#pragma once

#include <QString>

namespace tolvo {

/// Makes a folder, and the missing ones above it, that nobody but the user may enter. Folders that are there
/// stay as they are. What can't be made is no failure here: whoever uses the folder is told.
void makePrivateFolder(const QString &path);

/// Makes an empty file that nobody but the user may read or write. A file that is there stays as it is,
/// another process may make it at the same moment, and what can't be made is no failure here.
void makePrivateFile(const QString &path);

} // namespace tolvo
