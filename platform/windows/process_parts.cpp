// SPDX-License-Identifier: MIT
#include "platform/headless/process_parts.h"

#include <QProcess>

#include <vector>
#include <windows.h>

namespace tolvo {

/// Our ends of the pipes, one for each companion.
struct ProcessGate::Ends {
    std::vector<HANDLE> pipes;
};

ProcessGate::ProcessGate() : m_ends(std::make_unique<Ends>()) {
}

ProcessGate::~ProcessGate() {
    for (const HANDLE pipe : m_ends->pipes)
        CloseHandle(pipe);
}

QString ProcessGate::input() {
    constexpr DWORD roomForLine = 16;
    const QString name =
        QStringLiteral("\\\\.\\pipe\\tolvo-gate-%1-%2").arg(GetCurrentProcessId()).arg(m_ends->pipes.size());
    const HANDLE pipe =
        CreateNamedPipeW(name.toStdWString().c_str(), PIPE_ACCESS_OUTBOUND | FILE_FLAG_FIRST_PIPE_INSTANCE,
                         PIPE_TYPE_BYTE | PIPE_REJECT_REMOTE_CLIENTS, 1, roomForLine, 0, 0, nullptr);
    if (pipe == INVALID_HANDLE_VALUE)
        return QProcess::nullDevice();
    m_ends->pipes.push_back(pipe);
    return name;
}

void ProcessGate::open() {
    for (HANDLE &pipe : m_ends->pipes) {
        DWORD written = 0;
        if (!WriteFile(pipe, "\n", 1, &written, nullptr)) {
            CloseHandle(pipe);
            pipe = nullptr;
        }
    }
    std::erase(m_ends->pipes, nullptr);
}

void keepFilesFromChildren() {
    for (const DWORD stream : {STD_INPUT_HANDLE, STD_OUTPUT_HANDLE, STD_ERROR_HANDLE})
        SetHandleInformation(GetStdHandle(stream), HANDLE_FLAG_INHERIT, 0);
}

void waitForProcess(qint64 process) {
    const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process));
    if (handle == nullptr)
        return;
    WaitForSingleObject(handle, INFINITE);
    CloseHandle(handle);
}

} // namespace tolvo
