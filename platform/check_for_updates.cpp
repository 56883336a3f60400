// SPDX-License-Identifier: MIT
#include "platform/check_for_updates.h"

#include "base/paths.h"
#include "platform/report_error.h"

namespace tolvo {

void runCheckForUpdates(Processes &processes, MessageBoxes &boxes, const QString &programFolder, bool update,
                        bool stats, bool quiet, bool askedFor) {
    reportFailures(boxes, QStringLiteral("Gen_Procs"), QStringLiteral("runCheckForUpdates"), [&] {
        QStringList switches;
        if (update)
            switches += QStringLiteral("/update");
        if (stats)
            switches += QStringLiteral("/stats");
        if (quiet)
            switches += QStringLiteral("/quiet");
        processes.start({.program = sAppPath(programFolder) + QStringLiteral("Refresher.exe"),
                         .arguments = switches,
                         .askedFor = askedFor});
    });
}

} // namespace tolvo
