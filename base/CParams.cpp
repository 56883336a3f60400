// SPDX-License-Identifier: MIT
#include "base/CParams.h"

#include "base/strings.h"

namespace tolvo {

void CParams::init(const QString &settings, const QString &pairSeparator, QChar keyValueSeparator) {
    m_pairs.clear();
    for (const QStringView piece : QStringView(settings).split(pairSeparator)) {
        const qsizetype split = piece.indexOf(keyValueSeparator);
        const QString key = trimBlanks(split < 0 ? piece : piece.first(split)).toString();
        if (!m_pairs.contains(key))
            m_pairs.insert(key, split < 0 ? QString() : piece.sliced(split + 1).toString());
    }
}

QString CParams::refusal(const QString &advice) {
    return QStringLiteral(
               "A comma followed by a space can't be stored in the settings of an Action.\r\n\r\n") +
           advice;
}

} // namespace tolvo
