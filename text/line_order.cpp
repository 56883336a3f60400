// SPDX-License-Identifier: MIT
#include "text/line_order.h"

#include "base/case_folding.h"
#include "base/collation.h"
#include "base/numbers.h"
#include "text/line_list.h"
#include "text/table_rows.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <numeric>

namespace tolvo {

namespace {

using Order = SortLinesSettings::Order;

/// Bytes that compare as the character codes do: the surrogates are put after the other units.
QByteArray keyOfCodes(QStringView text) {
    constexpr char16_t firstSurrogate = 0xD800;
    constexpr char16_t afterSurrogates = 0xE000;
    constexpr char16_t surrogates = afterSurrogates - firstSurrogate;
    QByteArray key;
    key.reserve(text.size() * 2);
    for (const QChar c : text) {
        char16_t unit = c.unicode();
        if (unit >= afterSurrogates)
            unit -= surrogates;
        else if (unit >= firstSurrogate)
            unit += 0x10000 - afterSurrogates;
        key += static_cast<char>(unit >> 8);
        key += static_cast<char>(unit & 0xFF);
    }
    return key;
}

/// Bytes that compare as the numbers do.
QByteArray keyOfNumber(QStringView text) {
    constexpr quint64 sign = quint64{1} << 63;
    const auto bits = std::bit_cast<quint64>(ValueOf(text) + 0.0); // no negative zero
    QByteArray key(sizeof bits, Qt::Uninitialized);
    qToBigEndian((bits & sign) != 0 ? ~bits : bits | sign, key.data());
    return key;
}

QList<QByteArray> keysOf(const QList<QStringView> &texts, const SortLinesSettings &settings) {
    if (settings.order == Order::Language || settings.order == Order::Natural)
        return collationKeys(texts, {.language = settings.language,
                                     .numbersByValue = settings.order == Order::Natural,
                                     .ignoresCase = settings.ignoreCase});
    QList<QByteArray> keys;
    keys.reserve(texts.size());
    for (const QStringView text : texts) {
        if (settings.order == Order::Number)
            keys += keyOfNumber(text);
        else
            keys += keyOfCodes(settings.ignoreCase ? caseFolded(text) : text);
    }
    return keys;
}

} // namespace

QList<qsizetype> placesInOrder(const QList<QStringView> &texts, const SortLinesSettings &settings) {
    const QList<QByteArray> keys = keysOf(texts, settings);
    QList<qsizetype> places(keys.size());
    std::iota(places.begin(), places.end(), qsizetype{0});
    std::stable_sort(places.begin(), places.end(), [&](qsizetype one, qsizetype other) {
        return settings.descending ? keys.at(other) < keys.at(one) : keys.at(one) < keys.at(other);
    });
    if (settings.unique) {
        const auto alike = [&](qsizetype one, qsizetype other) { return keys.at(one) == keys.at(other); };
        places.erase(std::unique(places.begin(), places.end(), alike), places.end());
    }
    return places;
}

QString sortedLines(QStringView text, const SortLinesSettings &settings) {
    const TableRows table = settings.column > 0 ? tableRows(text) : TableRows{};
    const LineList list(settings.column > 0 ? table.rows : splitLines(text));
    const qsizetype head = std::min<qsizetype>(settings.head, list.lines.size());
    const QList<QStringView> lines = list.lines.sliced(head);
    QStringList cells;
    for (qsizetype i = 0; i < lines.size() && settings.column > 0; ++i)
        cells += valuesOf(lines.at(i), *table.parting).value(settings.column - 1);
    const QList<QStringView> compared =
        settings.column > 0 ? QList<QStringView>(cells.begin(), cells.end()) : lines;

    QList<QStringView> sorted = list.lines.first(head);
    for (const qsizetype place : placesInOrder(compared, settings))
        sorted += lines.at(place);
    return list.joined(sorted);
}

} // namespace tolvo
