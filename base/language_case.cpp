// SPDX-License-Identifier: MIT
#include "base/language_case.h"

#include <new>
#include <unicode/ustring.h>

namespace tolvo {

namespace {

/// Runs a mapping of the library: write(buffer, capacity, units, length, error) gives the length it needs.
template <class Write>
QString mapped(QStringView text, Write write) {
    if (text.isEmpty())
        return {};
    const auto *units = reinterpret_cast<const UChar *>(text.utf16());
    const auto length = static_cast<std::int32_t>(text.size());
    QString result(text.size() + text.size() / 8 + 16, Qt::Uninitialized);
    const auto attempt = [&](UErrorCode &error) {
        error = U_ZERO_ERROR;
        return write(reinterpret_cast<UChar *>(result.data()), static_cast<std::int32_t>(result.size()),
                     units, length, &error);
    };
    UErrorCode error = U_ZERO_ERROR;
    std::int32_t needed = attempt(error);
    if (error == U_BUFFER_OVERFLOW_ERROR) {
        result = QString(needed, Qt::Uninitialized);
        needed = attempt(error);
    }
    if (U_FAILURE(error))
        throw std::bad_alloc();
    result.truncate(needed);
    return result;
}

} // namespace

QString upperCaseIn(QStringView text, const char *language) {
    return mapped(text, [=](UChar *to, auto capacity, const UChar *from, auto length, UErrorCode *error) {
        return u_strToUpper(to, capacity, from, length, language, error);
    });
}

QString lowerCaseIn(QStringView text, const char *language) {
    return mapped(text, [=](UChar *to, auto capacity, const UChar *from, auto length, UErrorCode *error) {
        return u_strToLower(to, capacity, from, length, language, error);
    });
}

QString titleCaseIn(QStringView text, const char *language) {
    return mapped(text, [=](UChar *to, auto capacity, const UChar *from, auto length, UErrorCode *error) {
        return u_strToTitle(to, capacity, from, length, nullptr, language, error);
    });
}

} // namespace tolvo
