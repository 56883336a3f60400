// SPDX-License-Identifier: MIT
// Where the program's own files lie: all beside the executable in the build folder, in the usual places of
// the system once it is installed.
#pragma once

#include <QString>

namespace tolvo {

/// The folders of the program's own files, absolute and without a separator at the end.
struct ProgramFolders {
    QString programs; ///< companions and modules
    QString data;     ///< catalogue, lists, sound

    bool operator==(const ProgramFolders &) const = default;
};

/// The folders for an executable that lies in `executableFolder`. Under any prefix,
///   PREFIX/bin and PREFIX/libexec/tolvo give PREFIX/libexec/tolvo and PREFIX/share/tolvo
/// if the latter exists; any other folder is both itself. Where a build installs elsewhere than in bin,
/// libexec and share, its own names count.
[[nodiscard]] ProgramFolders programFolders(const QString &executableFolder);

/// The folders of the running program. Needs the QCoreApplication.
[[nodiscard]] ProgramFolders programFolders();

} // namespace tolvo
