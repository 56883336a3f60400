// SPDX-License-Identifier: MIT
#include "base/collation.h"

#include <QByteArray>
#include <QTextBoundaryFinder>
#include <algorithm>
#include <memory>
#include <new>
#include <numeric>
#include <unicode/uchar.h>
#include <unicode/ucol.h>

namespace tolvo {

namespace {

using Collator = std::unique_ptr<UCollator, decltype(&ucol_close)>;

Collator collatorFor(const Collation &collation) {
    UErrorCode error = U_ZERO_ERROR;
    Collator collator(ucol_open(collation.language.toLatin1().constData(), &error), &ucol_close);
    if (U_FAILURE(error) || collator == nullptr)
        throw std::bad_alloc();
    if (collation.numbersByValue)
        ucol_setAttribute(collator.get(), UCOL_NUMERIC_COLLATION, UCOL_ON, &error);
    if (collation.ignoresCase)
        ucol_setStrength(collator.get(), UCOL_SECONDARY);
    return collator;
}

/// The bytes that compare as the text does.
QByteArray sortKey(const UCollator &collator, QStringView text) {
    const auto *units = reinterpret_cast<const UChar *>(text.isEmpty() ? u"" : text.utf16());
    const auto length = static_cast<std::int32_t>(text.size());
    const auto write = [&](QByteArray &key) {
        return ucol_getSortKey(&collator, units, length, reinterpret_cast<std::uint8_t *>(key.data()),
                               static_cast<std::int32_t>(key.size()));
    };
    QByteArray key(text.size() * 3 + 8, Qt::Uninitialized);
    const std::int32_t needed = write(key);
    const bool fits = needed <= key.size();
    key.resize(needed);
    if (!fits)
        write(key);
    return key;
}

bool isWide(char32_t character) {
    const auto code = static_cast<UChar32>(character);
    const int width = u_getIntPropertyValue(code, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH;
}

} // namespace

QList<QByteArray> collationKeys(const QList<QStringView> &texts, const Collation &collation) {
    const Collator collator = collatorFor(collation);
    QList<QByteArray> keys;
    keys.reserve(texts.size());
    for (const QStringView text : texts)
        keys += sortKey(*collator, text);
    return keys;
}

QStringList collationLanguages() {
    QStringList languages;
    for (std::int32_t i = 0; i < ucol_countAvailable(); ++i) {
        const QString locale = QString::fromLatin1(ucol_getAvailable(i));
        if (!locale.contains(u'_'))
            languages += locale;
    }
    return languages;
}

QList<QStringView> sortedByCollation(const QList<QStringView> &texts) {
    const QList<QByteArray> keys = collationKeys(texts, {.language = {}, .numbersByValue = true});
    QList<qsizetype> order(keys.size());
    std::iota(order.begin(), order.end(), qsizetype{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](qsizetype one, qsizetype other) { return keys.at(one) < keys.at(other); });
    QList<QStringView> sorted;
    for (const qsizetype place : order)
        sorted += texts.at(place);
    return sorted;
}

qsizetype displayWidth(QStringView text) {
    qsizetype width = 0;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text.constData(), text.size());
    for (qsizetype start = 0, end = finder.toNextBoundary(); end >= 0; end = finder.toNextBoundary()) {
        const QChar first = text[start];
        const bool pair = first.isHighSurrogate() && end - start > 1;
        const char32_t character = pair ? QChar::surrogateToUcs4(first, text[start + 1]) : first.unicode();
        const bool shown = first.category() != QChar::Other_Format &&
                           first.category() != QChar::Other_Control &&
                           first.category() != QChar::Mark_NonSpacing;
        width += !shown ? 0 : isWide(character) ? 2 : 1;
        start = end;
    }
    return width;
}

} // namespace tolvo
