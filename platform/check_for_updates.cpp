// SPDX-License-Identifier: MIT
#include "platform/check_for_updates.h"

#include "base/paths.h"
#include "platform/report_error.h"

namespace tolvo {

void runCheckForUpdates(Processes &processes, MessageBoxes &boxes, const QString &programFolder, bool update,
                        bool stats, bool quiet) {
    reportFailures(boxes, QStringLiteral("Gen_Procs"), QStringLiteral("runCheckForUpdates"), [&] {
        QStringList switches;
        if (update)
            switches += QStringLiteral("/update");
        if (stats)
            switches += QStringLiteral("/stats");
        if (quiet)
            switches += QStringLiteral("/quiet");
        processes.start(sAppPath(programFolder) + QStringLiteral("Refresher.exe"), switches,
                        WindowMode::Normal);
    });
}

} // namespace tolvo
