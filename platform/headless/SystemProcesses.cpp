// SPDX-License-Identifier: MIT
#include "platform/headless/SystemProcesses.h"

#include "base/failure.h"

#include <QProcess>

#include <cerrno>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tolvo {

namespace {

[[noreturn]] void failNotStarted(const QString &program) {
    throw Failure(failureNumber::fileNotFound, QStringLiteral("Can't start the program \"%1\"").arg(program));
}

} // namespace

qint64 SystemProcesses::start(const QString &program, const QStringList &arguments, WindowMode) {
    qint64 process = 0;
    if (!QProcess::startDetached(program, arguments, QString(), &process))
        failNotStarted(program);
    return process;
}

void SystemProcesses::waitFor(qint64 process) {
    // A handle on the process and not its number: numbers are used again, and the process is no child of
    // ours.
    const int handle = static_cast<int>(syscall(SYS_pidfd_open, static_cast<pid_t>(process), 0U));
    if (handle < 0)
        return;
    pollfd ended{handle, POLLIN, 0};
    while (poll(&ended, 1, -1) < 0 && errno == EINTR) {
    }
    close(handle);
}

bool SystemProcesses::open(const QString &) {
    return false;
}

qint64 RecordingProcesses::start(const QString &program, const QStringList &arguments, WindowMode mode) {
    if (missing)
        failNotStarted(program);
    started += Start{program, arguments, mode};
    return started.size();
}

} // namespace tolvo
