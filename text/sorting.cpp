// SPDX-License-Identifier: MIT
// The sorts. They order by separate keys and carry the lines along, so that making a key never changes the
// text.
#include "base/code_page.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "text/cTextMethods.h"
#include "text/lines.h"
#include "text/partition_sort.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace tolvo {

namespace {

using Order = std::vector<std::int32_t>;

/// A text key that compares by code units; its first four decide most comparisons.
struct TextKey {
    quint64 front = 0;
    QStringView text;
    std::int32_t index;

    TextKey(QStringView key, qsizetype place) : text(key), index(static_cast<std::int32_t>(place)) {
        for (qsizetype i = 0; i < 4; ++i)
            front = front << 16U | (i < key.size() ? key.at(i).unicode() : 0U);
    }
    bool operator<(const TextKey &other) const {
        return front != other.front ? front < other.front : text.compare(other.text) < 0;
    }
};

struct NumberKey {
    double value;
    std::int32_t index;
    bool operator<(const NumberKey &other) const { return value < other.value; }
};

/// The indices of the keys in sorted order, equal keys in the order that the partition sort gives them.
template <class Key>
Order sortedOrder(std::vector<Key> keys) {
    std::sort(keys.begin(), keys.end());
    Order ranks(keys.size());
    Order order;
    order.reserve(keys.size());
    std::int32_t rank = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i > 0 && keys[i - 1] < keys[i])
            ++rank;
        ranks[static_cast<std::size_t>(keys[i].index)] = rank;
        order.push_back(keys[i].index);
    }
    const bool allDiffer = static_cast<std::size_t>(rank) + 1 >= keys.size();
    return allDiffer ? order : partitionOrder(std::move(ranks));
}

/// The keys of these views into a text: they point into `upper`, the same text in upper case.
std::vector<TextKey> keysOf(const QList<QStringView> &views, QStringView text, QStringView upper,
                            QStringView (*trim)(QStringView)) {
    std::vector<TextKey> keys;
    keys.reserve(static_cast<std::size_t>(views.size()));
    for (const QStringView view : views)
        keys.emplace_back(trim(upper.sliced(view.data() - text.data(), view.size())),
                          static_cast<qsizetype>(keys.size()));
    return keys;
}

/// Appends the views that aren't empty, in this order, with the separator between them.
void appendJoined(QString &result, const QList<QStringView> &views, const Order &order,
                  QStringView separator) {
    bool first = true;
    for (const auto index : order) {
        const QStringView view = views.at(index);
        if (view.isEmpty())
            continue;
        if (!first)
            result += separator;
        result += view;
        first = false;
    }
}

bool isOneLine(QStringView text) {
    return trimBlanks(text).isEmpty() || !text.contains(lineEnd);
}

/// Appends a line with its items sorted; `upper` is the line in upper case. A line without a comma stays as
/// it is.
void KeywordSortLine(QString &result, QStringView line, QStringView upper) {
    if (!line.contains(u',')) {
        result += line;
        return;
    }
    QList<QStringView> items;
    for (const QStringView item : line.tokenize(u','))
        items.append(trimBlanks(item));
    const auto keepAll = [](QStringView key) { return key; };
    appendJoined(result, items, sortedOrder(keysOf(items, line, upper, keepAll)), u", ");
}

QString inBand(const std::optional<QString> &sorted) {
    return sorted ? *sorted : sortError.toString();
}

} // namespace

QString cTextMethods::Sort(QStringView text) const {
    return inBand(sortedLines(text));
}

QString cTextMethods::Numsort(QStringView text) const {
    return inBand(sortedByNumber(text));
}

QString cTextMethods::SortReverse(QStringView text) const {
    return inBand(reversedLines(text));
}

QString cTextMethods::KeywordSort(QStringView text) const {
    return inBand(sortedKeywords(text));
}

std::optional<QString> cTextMethods::sortedLines(QStringView text) const {
    if (isOneLine(text))
        return std::nullopt;
    const QString upper = toUpper(text);
    const QList<QStringView> lines = splitLines(text);
    QString result;
    result.reserve(text.size());
    appendJoined(result, lines, sortedOrder(keysOf(lines, text, upper, trimWhiteSpace)), lineEnd);
    return result;
}

std::optional<QString> cTextMethods::sortedByNumber(QStringView text) const {
    if (isOneLine(text))
        return std::nullopt;
    QList<QStringView> lines = splitLines(text);
    std::vector<NumberKey> keys;
    keys.reserve(static_cast<std::size_t>(lines.size()));
    for (QStringView &line : lines) {
        line = trimBlanks(line);
        keys.push_back({ValueOf(line), static_cast<std::int32_t>(keys.size())});
    }
    QString result;
    result.reserve(text.size());
    appendJoined(result, lines, sortedOrder(keys), lineEnd);
    return result;
}

std::optional<QString> cTextMethods::reversedLines(QStringView text) const {
    if (isOneLine(text))
        return std::nullopt;
    QString result;
    result.reserve(text.size());
    const QList<QStringView> lines = splitLines(text);
    for (qsizetype i = lines.size(); i-- > 0;) {
        result += lines.at(i);
        result += lineEnd;
    }
    result.chop(2);
    return result;
}

std::optional<QString> cTextMethods::sortedKeywords(QStringView text) const {
    if (trimBlanks(text).isEmpty() || !text.contains(u','))
        return std::nullopt;
    const QString upper = toUpper(text);
    return changeLines(text, [&](QStringView line, QString &result) {
        KeywordSortLine(result, line, QStringView(upper).sliced(line.data() - text.data(), line.size()));
    });
}

} // namespace tolvo
