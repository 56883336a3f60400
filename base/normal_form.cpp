// SPDX-License-Identifier: MIT
#include "base/normal_form.h"

#include <new>
#include <unicode/unorm2.h>

namespace tolvo {

QString normalFormC(QStringView text) {
    if (text.isEmpty())
        return {};
    constexpr qsizetype mostGrowth = 3; // UTF-16 units for one, in the worst case
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2 *const form = unorm2_getNFCInstance(&error);
    QString result(text.size() * mostGrowth, Qt::Uninitialized);
    const std::int32_t length = unorm2_normalize(
        form, reinterpret_cast<const UChar *>(text.utf16()), static_cast<std::int32_t>(text.size()),
        reinterpret_cast<UChar *>(result.data()), static_cast<std::int32_t>(result.size()), &error);
    if (U_FAILURE(error))
        throw std::bad_alloc();
    result.truncate(length);
    return result;
}

} // namespace tolvo
