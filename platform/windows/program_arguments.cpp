// SPDX-License-Identifier: MIT
#include "platform/program_arguments.h"

#include <cstdio>
#include <windows.h>

#include <shellapi.h>

namespace tolvo {

namespace {

bool leadsSomewhere(DWORD stream) {
    const HANDLE handle = GetStdHandle(stream);
    return handle != nullptr && handle != INVALID_HANDLE_VALUE;
}

} // namespace

QStringList programArguments(int, char **) {
    QStringList words;
    int count = 0;
    wchar_t **line = CommandLineToArgvW(GetCommandLineW(), &count);
    for (int i = 1; line != nullptr && i < count; ++i)
        words += QString::fromWCharArray(line[i]);
    LocalFree(line);
    return words;
}

void joinCallersConsole() {
    const bool out = leadsSomewhere(STD_OUTPUT_HANDLE);
    const bool error = leadsSomewhere(STD_ERROR_HANDLE);
    if ((out && error) || !AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    if (!out)
        (void)std::freopen("CONOUT$", "w", stdout);
    if (!error)
        (void)std::freopen("CONOUT$", "w", stderr);
}

} // namespace tolvo
