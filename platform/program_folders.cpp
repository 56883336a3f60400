// SPDX-License-Identifier: MIT
#include "platform/program_folders.h"

#include <QCoreApplication>
#include <QDir>

namespace tolvo {

namespace {

// Below the prefix, as the build installs them.
constexpr QLatin1StringView commands{TOLVO_COMMANDS_BELOW_PREFIX};
constexpr QLatin1StringView programs{TOLVO_PROGRAMS_BELOW_PREFIX};
constexpr QLatin1StringView data{TOLVO_DATA_BELOW_PREFIX};

} // namespace

ProgramFolders programFolders(const QString &executableFolder) {
    const QString folder = QDir::cleanPath(executableFolder);
    for (const QLatin1StringView place : {commands, programs}) {
        if (!folder.endsWith(place) || !folder.chopped(place.size()).endsWith(u'/'))
            continue;
        const QString prefix = folder.chopped(place.size());
        if (QDir(prefix + data).exists())
            return {.programs = prefix + programs, .data = prefix + data};
    }
    return {.programs = folder, .data = folder};
}

ProgramFolders programFolders() {
    return programFolders(QCoreApplication::applicationDirPath());
}

} // namespace tolvo
