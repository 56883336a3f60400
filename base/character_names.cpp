// SPDX-License-Identifier: MIT
#include "base/character_names.h"

#include <QTextBoundaryFinder>
#include <array>
#include <unicode/uchar.h>

namespace tolvo {

QString characterName(char32_t character) {
    std::array<char, 128> name{};
    UErrorCode error = U_ZERO_ERROR;
    u_charName(static_cast<UChar32>(character), U_EXTENDED_CHAR_NAME, name.data(), name.size(), &error);
    return U_SUCCESS(error) ? QString::fromLatin1(name.data()) : QString();
}

QString characterCode(char32_t character) {
    return QStringLiteral("U+%1").arg(static_cast<uint>(character), 4, 16, QLatin1Char('0')).toUpper();
}

QList<char32_t> characterAt(const QString &text, qsizetype position) {
    constexpr qsizetype longest = 256; // units; marks without end may stand on one letter
    const QString part = text.sliced(position, std::min(longest, text.size() - position));
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, part);
    const qsizetype end = finder.toNextBoundary();
    QList<char32_t> result;
    for (qsizetype i = 0; i < end; ++i) {
        const QChar unit = part[i];
        if (unit.isHighSurrogate() && i + 1 < end && part[i + 1].isLowSurrogate())
            result += QChar::surrogateToUcs4(unit, part[++i]);
        else
            result += unit.unicode();
    }
    return result;
}

} // namespace tolvo
