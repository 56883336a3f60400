// SPDX-License-Identifier: MIT
#include "search/escaped_text.h"

namespace tolvo {

EscapedText escapedControls(QStringView text) {
    EscapedText escaped;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit >= 32) {
            escaped.text += QChar(unit);
            continue;
        }
        escaped.specialChars = true;
        if (unit == u'\t') {
            escaped.text += QLatin1StringView("\\t");
        } else if (text.sliced(i).startsWith(u"\r\n")) {
            escaped.text += QLatin1StringView("\\n");
            ++i;
        } else {
            escaped.text += QStringLiteral("\\x%1").arg(QString::number(unit, 16).toUpper(), 2, u'0');
        }
    }
    return escaped;
}

} // namespace tolvo
