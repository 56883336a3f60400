// SPDX-License-Identifier: MIT
#include "base/case_folding.h"

#include <unicode/uchar.h>
#include <unicode/ustring.h>

namespace tolvo {

QString caseFolded(QStringView text) {
    constexpr qsizetype mostUnitsOfOne = 3;
    QString folded(text.size() * mostUnitsOfOne, Qt::Uninitialized);
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t length =
        u_strFoldCase(reinterpret_cast<UChar *>(folded.data()), static_cast<std::int32_t>(folded.size()),
                      reinterpret_cast<const UChar *>(text.utf16()), static_cast<std::int32_t>(text.size()),
                      U_FOLD_CASE_DEFAULT, &error);
    folded.truncate(length);
    return folded;
}

} // namespace tolvo
