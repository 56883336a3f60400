// SPDX-License-Identifier: MIT
#include "platform/system_information.h"

#include "base/failure.h"
#include "platform/processes.h"
#include "platform/windows/registry_value.h"

#include <QStandardPaths>

namespace tolvo {

namespace {

/// The registry's word comes first; the program lies among the system's own besides.
QString informationProgram() {
    if (QString path = GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", u"PATH"); !path.isEmpty())
        return path;
    const QString folder = GetKeyValue(u"SOFTWARE\\Microsoft\\Shared Tools Location", u"MSINFO");
    return folder.isEmpty() ? QStandardPaths::findExecutable(QStringLiteral("msinfo32"))
                            : folder + QStringLiteral("\\MSINFO32.EXE");
}

} // namespace

bool StartSysInfo(Processes &processes) {
    const QString program = informationProgram();
    if (program.isEmpty())
        return false;
    try {
        processes.start(program, {}, WindowMode::Normal);
        return true;
    } catch (const Failure &) {
        return false;
    }
}

} // namespace tolvo
