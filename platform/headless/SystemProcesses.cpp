// SPDX-License-Identifier: MIT
#include "platform/headless/SystemProcesses.h"

#include "base/failure.h"
#include "platform/headless/open_descriptors.h"

#include <QProcess>
#include <QProcessEnvironment>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace tolvo {

namespace {

[[noreturn]] void failNotStarted(const QString &program) {
    throw Failure(failureNumber::fileNotFound, QStringLiteral("Can't start the program \"%1\"").arg(program));
}

} // namespace

SystemProcesses::~SystemProcesses() {
    for (const int end : {m_gateIn, m_gateOut}) {
        if (end >= 0)
            close(end);
    }
}

qint64 SystemProcesses::start(const ProgramStart &start) {
    QProcess process;
    process.setProgram(start.program);
    process.setArguments(start.arguments);
    process.setStandardInputFile(start.heldBack ? gate() : QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (start.heldBack || start.askedFor) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto &[said, variable] :
             {std::pair{start.heldBack, heldBackVariable}, {start.askedFor, askedForVariable}}) {
            if (said)
                environment.insert(QLatin1StringView(variable), QString::number(getpid()));
        }
        process.setProcessEnvironment(environment);
    }
    // The program that started this one may wait for the end of the streams that it passed on.
    for (const int descriptor : openDescriptors())
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
    qint64 identifier = 0;
    if (!process.startDetached(&identifier))
        failNotStarted(start.program);
    return identifier;
}

QString SystemProcesses::gate() {
    if (std::array<int, 2> pipe{-1, -1}; m_gateIn < 0 && pipe2(pipe.data(), O_CLOEXEC) == 0) {
        m_gateOut = pipe[0];
        m_gateIn = pipe[1];
    }
    return m_gateIn < 0 ? QProcess::nullDevice() : QStringLiteral("/proc/self/fd/%1").arg(m_gateOut);
}

void SystemProcesses::letGo() {
    // The line end fits into the pipe, whether anybody reads it or not: our own end for reading stays open.
    if (m_gateIn >= 0 && write(m_gateIn, "\n", 1) < 0)
        close(std::exchange(m_gateIn, -1)); // the companion leaves instead
}

void SystemProcesses::waitFor(qint64 process) {
    // A handle on the process, not its number: numbers are reused, and the process is not a child of this
    // one.
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

} // namespace tolvo
