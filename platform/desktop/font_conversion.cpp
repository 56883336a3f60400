// SPDX-License-Identifier: MIT
#include "platform/desktop/font_conversion.h"

#include <QFontInfo>

namespace tolvo {

QFont toQFont(const Font &font) {
    QFont result(font.name);
    if (font.size > 0)
        result.setPointSizeF(font.size);
    result.setBold(font.bold);
    result.setItalic(font.italic);
    return result;
}

Font fromQFont(const QFont &font) {
    // A font set in pixels has no size in points of its own.
    const double size = font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
    return {.name = font.family(), .size = size, .bold = font.bold(), .italic = font.italic()};
}

} // namespace tolvo
