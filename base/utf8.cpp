// SPDX-License-Identifier: MIT
#include "base/utf8.h"

#include <QString>

namespace tolvo {

QByteArray utf8Of(QStringView text) {
    if (text.isValidUtf16())
        return text.toUtf8();
    QString whole = text.toString();
    for (qsizetype i = 0; i < whole.size(); ++i) {
        const bool isPair =
            whole[i].isHighSurrogate() && i + 1 < whole.size() && whole[i + 1].isLowSurrogate();
        if (isPair)
            ++i;
        else if (whole[i].isSurrogate())
            whole[i] = u'?';
    }
    return whole.toUtf8();
}

} // namespace tolvo
