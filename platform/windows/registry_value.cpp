// SPDX-License-Identifier: MIT
#include "platform/windows/registry_value.h"

#include <windows.h>

namespace tolvo {

namespace {

struct Place {
    std::wstring key;
    std::wstring value;
};

QString textAt(const Place &place) {
    const auto ask = [&](wchar_t *text, DWORD &bytes) {
        return RegGetValueW(HKEY_LOCAL_MACHINE, place.key.c_str(), place.value.c_str(), RRF_RT_REG_SZ,
                            nullptr, text, &bytes) == ERROR_SUCCESS;
    };
    DWORD bytes = 0;
    if (!ask(nullptr, bytes))
        return {};
    std::wstring text(bytes / sizeof(wchar_t) + 1, L'\0');
    bytes = static_cast<DWORD>(text.size() * sizeof(wchar_t));
    return ask(text.data(), bytes) ? QString::fromWCharArray(text.c_str()) : QString();
}

QString numberAt(const Place &place) {
    DWORD number = 0;
    DWORD bytes = sizeof number;
    if (RegGetValueW(HKEY_LOCAL_MACHINE, place.key.c_str(), place.value.c_str(), RRF_RT_REG_DWORD, nullptr,
                     &number, &bytes) != ERROR_SUCCESS)
        return {};
    return QStringLiteral("&h") + QString::number(number, 16).toUpper();
}

} // namespace

QString GetKeyValue(QStringView key, QStringView value) {
    const Place place{key.toString().toStdWString(), value.toString().toStdWString()};
    const QString text = textAt(place);
    return text.isEmpty() ? numberAt(place) : text;
}

} // namespace tolvo
