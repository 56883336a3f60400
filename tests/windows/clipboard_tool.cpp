// SPDX-License-Identifier: MIT
// Another program of Windows with its hands on the clipboard: clipboard_tool read | write | hold SECONDS.
//   read   the text to standard output, as UTF-8; exits with 1 if there is no text
//   write  the text of standard input
//   hold   keeps the clipboard open; says "held" once it is
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <io.h>
#include <string>
#include <string_view>
#include <windows.h>

namespace {

bool openClipboard(HWND owner) {
    for (int tries = 0; tries < 100; ++tries) {
        if (OpenClipboard(owner))
            return true;
        Sleep(20);
    }
    return false;
}

int readText() {
    if (!openClipboard(nullptr))
        return 2;
    const HANDLE memory = GetClipboardData(CF_UNICODETEXT);
    if (memory == nullptr)
        return 1;
    const auto *units = static_cast<const wchar_t *>(GlobalLock(memory));
    std::string text(
        static_cast<std::size_t>(WideCharToMultiByte(CP_UTF8, 0, units, -1, nullptr, 0, nullptr, nullptr)),
        '\0');
    WideCharToMultiByte(CP_UTF8, 0, units, -1, text.data(), static_cast<int>(text.size()), nullptr, nullptr);
    GlobalUnlock(memory);
    CloseClipboard();
    std::fwrite(text.data(), 1, text.size() - 1, stdout); // without the NUL
    return 0;
}

int writeText() {
    std::string text;
    std::array<char, 4096> part{};
    while (const std::size_t size = std::fread(part.data(), 1, part.size(), stdin))
        text.append(part.data(), size);
    const HWND owner =
        CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    if (!openClipboard(owner) || !EmptyClipboard())
        return 2;
    const int size = MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, nullptr, 0);
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, static_cast<std::size_t>(size) * sizeof(wchar_t));
    MultiByteToWideChar(CP_UTF8, 0, text.c_str(), -1, static_cast<wchar_t *>(GlobalLock(memory)), size);
    GlobalUnlock(memory);
    const bool taken = SetClipboardData(CF_UNICODETEXT, memory) != nullptr;
    CloseClipboard();
    return taken ? 0 : 2;
}

int hold(int seconds) {
    if (!openClipboard(nullptr))
        return 2;
    std::puts("held");
    std::fflush(stdout);
    Sleep(static_cast<DWORD>(seconds) * 1000);
    CloseClipboard();
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
    const std::string_view what = argc > 1 ? argv[1] : "";
    if (what == "read")
        return readText();
    if (what == "write")
        return writeText();
    if (what == "hold" && argc == 3)
        return hold(std::atoi(argv[2]));
    std::fputs("usage: clipboard_tool read | write | hold SECONDS\n", stderr);
    return 2;
}
