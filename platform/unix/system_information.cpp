// SPDX-License-Identifier: MIT
#include "platform/system_information.h"

#include "base/failure.h"
#include "platform/processes.h"

#include <QStandardPaths>
#include <array>

namespace tolvo {

namespace {

struct Candidate {
    const char *program;
    const char *argument;
};

constexpr std::array<Candidate, 7> candidates = {{{"msinfo32", ""},
                                                  {"kinfocenter", ""},
                                                  {"gnome-control-center", "info-overview"},
                                                  {"cinnamon-settings", "info"},
                                                  {"mate-system-monitor", ""},
                                                  {"hardinfo", ""},
                                                  {"hardinfo2", ""}}};

} // namespace

bool StartSysInfo(Processes &processes) {
    for (const Candidate &candidate : candidates) {
        const QString program = QStandardPaths::findExecutable(QLatin1StringView(candidate.program));
        if (program.isEmpty())
            continue;
        const QString argument = QLatin1StringView(candidate.argument);
        try {
            processes.start(program, argument.isEmpty() ? QStringList() : QStringList(argument),
                            WindowMode::Normal);
            return true;
        } catch (const Failure &) {
            // The next one may start.
            continue;
        }
    }
    return false;
}

} // namespace tolvo
