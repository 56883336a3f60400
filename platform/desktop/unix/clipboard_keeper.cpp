// SPDX-License-Identifier: MIT
#include "platform/desktop/clipboard_keeper.h"

#include "platform/desktop/unix/x11_selection.h"
#include "platform/unix/open_descriptors.h"

#include <QClipboard>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <malloc.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tolvo {

namespace {

constexpr std::array forwardedSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler has no other way to reach it.
volatile std::sig_atomic_t sessionProcess = 0;

void forwardSignal(int signal) {
    kill(static_cast<pid_t>(sessionProcess), signal);
}

/// Ends this process by the signal that ended the session. Any core file is the session's.
[[noreturn]] void dieBySignal(int signal) {
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    std::signal(signal, SIG_DFL);
    sigset_t only;
    sigemptyset(&only);
    sigaddset(&only, signal);
    sigprocmask(SIG_UNBLOCK, &only, nullptr);
    raise(signal);
    _exit(128 + signal);
}

/// The parent: waits for the exit code on the pipe, or for the end of the session.
[[noreturn]] void waitForSession(pid_t session, int pipe, const sigset_t &mask) {
    sessionProcess = session;
    struct sigaction forward = {};
    forward.sa_handler = forwardSignal;
    for (const int signal : forwardedSignals)
        sigaction(signal, &forward, nullptr);
    sigprocmask(SIG_SETMASK, &mask, nullptr);

    int exitCode = 0;
    ssize_t got = 0;
    do
        got = read(pipe, &exitCode, sizeof exitCode);
    while (got < 0 && errno == EINTR);
    if (got == static_cast<ssize_t>(sizeof exitCode))
        _exit(exitCode);

    int status = 0;
    while (waitpid(session, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFSIGNALED(status))
        dieBySignal(WTERMSIG(status));
    _exit(WEXITSTATUS(status));
}

bool ownsClipboard() {
    return isX11() ? ownsX11Clipboard() : QGuiApplication::clipboard()->ownsClipboard();
}

} // namespace

KeeperSession::KeeperSession(int pipe, std::vector<int> inherited)
    : m_pipe(pipe), m_inherited(std::move(inherited)) {
}

KeeperSession::~KeeperSession() {
    if (m_pipe >= 0)
        close(m_pipe);
}

void KeeperSession::sessionOver(int exitCode) {
    if (m_pipe < 0)
        return;
    prctl(PR_SET_PDEATHSIG, 0); // from here on this process outlives its parent
    setsid();
    const int null = open("/dev/null", O_RDWR | O_CLOEXEC);
    for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(null, descriptor);
    close(null);
    for (const int descriptor : m_inherited)
        close(descriptor);
    while (write(m_pipe, &exitCode, sizeof exitCode) < 0 && errno == EINTR) {
    }
    close(m_pipe);
    m_pipe = -1;
    m_alone = true;
}

void KeeperSession::keepClipboardUntilTaken() {
    if (!m_alone || !ownsClipboard())
        return;
    malloc_trim(0); // a keeper doesn't need the session's memory
    QEventLoop loop;
    const auto endIfTaken = [&loop] {
        if (!ownsClipboard())
            loop.quit();
    };
    QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &loop, endIfTaken);
    // Qt can miss the change when two programs take the clipboard at the same moment.
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &loop, endIfTaken);
    look.start(500);
    loop.exec();
}

int runAsClipboardKeeper(const std::function<int(KeeperSession &)> &session) {
    std::vector<int> inherited = openDescriptors();
    sigset_t blocked;
    sigset_t before;
    sigemptyset(&blocked);
    for (const int signal : forwardedSignals)
        sigaddset(&blocked, signal);

    std::array<int, 2> pipe{-1, -1};
    pid_t child = -1;
    sigprocmask(SIG_BLOCK, &blocked, &before);
    const pid_t parent = getpid();
    if (pipe2(pipe.data(), O_CLOEXEC) == 0)
        child = fork();
    if (child > 0) {
        close(pipe[1]);
        waitForSession(child, pipe[0], before);
    }
    sigprocmask(SIG_SETMASK, &before, nullptr);
    if (pipe[0] >= 0)
        close(pipe[0]);
    if (child < 0 && pipe[1] >= 0) {
        close(pipe[1]);
        pipe[1] = -1;
    }
    if (child == 0) {
        // Killing the parent ends the session too, as if there were one process.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != parent)
            _exit(1);
    }
    KeeperSession keeper(pipe[1], std::move(inherited));
    return session(keeper);
}

} // namespace tolvo
