// SPDX-License-Identifier: MIT
// Files and folders that only the user may read.
#pragma once

#include <QString>

namespace tolvo {

/// Creates a folder, and the missing ones above it, for the user alone. Existing folders keep their rights. A
/// folder that can't be created is not reported here: the first use of it is.
void makePrivateFolder(const QString &path);

/// Creates an empty file for the user alone. An existing file stays as it is, also if another process creates
/// it at the same moment. A file that can't be created is not reported here.
void makePrivateFile(const QString &path);

} // namespace tolvo
