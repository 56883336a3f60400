// SPDX-License-Identifier: MIT
#include "platform/headless/process_parts.h"

#include "platform/unix/open_descriptors.h"

#include <QProcess>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>

namespace tolvo {

struct ProcessGate::Ends {
    int out = -1; ///< what companions read
    int in = -1;  ///< our end; they leave when it is closed
};

ProcessGate::ProcessGate() : m_ends(std::make_unique<Ends>()) {
}

ProcessGate::~ProcessGate() {
    for (const int end : {m_ends->in, m_ends->out}) {
        if (end >= 0)
            close(end);
    }
}

QString ProcessGate::input() {
    if (std::array<int, 2> pipe{-1, -1}; m_ends->in < 0 && pipe2(pipe.data(), O_CLOEXEC) == 0) {
        m_ends->out = pipe[0];
        m_ends->in = pipe[1];
    }
    return m_ends->in < 0 ? QProcess::nullDevice() : QStringLiteral("/proc/self/fd/%1").arg(m_ends->out);
}

void ProcessGate::open() {
    // The line end fits into the pipe, whether anybody reads it or not: our own end for reading stays open.
    if (m_ends->in >= 0 && write(m_ends->in, "\n", 1) < 0)
        close(std::exchange(m_ends->in, -1));
}

void keepFilesFromChildren() {
    for (const int descriptor : openDescriptors())
        fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

void waitForProcess(qint64 process) {
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

} // namespace tolvo
