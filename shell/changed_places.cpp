// SPDX-License-Identifier: MIT
#include "shell/changed_places.h"

#include "base/numbers.h"
#include "shell/common_parts.h"

#include <algorithm>

namespace tolvo {

namespace {

/// Equal characters between two places of one word that are too few to part them.
constexpr qsizetype hardlyApart = 2;

/// What the comparison of characters may cost in all, in steps of Myers' algorithm.
constexpr int mostWork = 400'000;

class Comparison {
  public:
    Comparison(QStringView before, QStringView after) : m_before(before), m_after(after) {}

    QList<ChangedPlace> places() {
        compare({0, m_before.size(), 0, m_after.size()}, By::Lines);
        return std::move(m_places);
    }

  private:
    enum class By { Lines, Words, Characters };

    void compare(ChangedPlace area, By by);
    void compareInside(const ChangedPlace &area, By by);
    bool compareByPosition(const ChangedPlace &area);
    void add(const ChangedPlace &place);
    [[nodiscard]] bool joins(const ChangedPlace &last, const ChangedPlace &next) const;
    [[nodiscard]] QList<CommonPart> commonParts(const ChangedPlace &area, By by);
    [[nodiscard]] QStringView oldText(const ChangedPlace &area) const {
        return m_before.sliced(area.oldStart, area.oldLength);
    }
    [[nodiscard]] QStringView newText(const ChangedPlace &area) const {
        return m_after.sliced(area.start, area.length);
    }

    QStringView m_before;
    QStringView m_after;
    int m_workLeft = mostWork;
    QList<ChangedPlace> m_places;
};

/// What both sides begin and end with is left aside.
void Comparison::compare(ChangedPlace area, By by) {
    const qsizetype front = equalFront(oldText(area), newText(area));
    area = {area.oldStart + front, area.oldLength - front, area.start + front, area.length - front};
    const qsizetype back = equalBack(oldText(area), newText(area));
    area.oldLength -= back;
    area.length -= back;
    if (area.oldLength == 0 || area.length == 0)
        add(area);
    else if (!compareByPosition(area))
        compareInside(area, by);
}

/// Texts of one length that differ in case alone, or nearly so.
bool Comparison::compareByPosition(const ChangedPlace &area) {
    if (area.oldLength != area.length)
        return false;
    const QStringView before = oldText(area);
    const QStringView after = newText(area);
    qsizetype alike = 0;
    for (qsizetype at = 0; at < before.size(); ++at)
        alike += before[at] == after[at] || before[at].toCaseFolded() == after[at].toCaseFolded() ? 1 : 0;
    if (alike * 2 <= before.size())
        return false;
    for (qsizetype at = 0; at < before.size(); ++at) {
        if (before[at] != after[at])
            add({area.oldStart + at, 1, area.start + at, 1});
    }
    return true;
}

void Comparison::compareInside(const ChangedPlace &area, By by) {
    const QList<CommonPart> parts = commonParts(area, by);
    qsizetype oldDone = 0;
    qsizetype done = 0;
    const auto between = [&](qsizetype oldEnd, qsizetype end) {
        const ChangedPlace gap{area.oldStart + oldDone, oldEnd - oldDone, area.start + done, end - done};
        if (by == By::Characters)
            add(gap);
        else
            compare(gap, by == By::Lines ? By::Words : By::Characters);
    };
    for (const CommonPart &part : parts) {
        between(part.oldStart, part.start);
        oldDone = part.oldStart + part.length;
        done = part.start + part.length;
    }
    between(area.oldLength, area.length);
}

QList<CommonPart> Comparison::commonParts(const ChangedPlace &area, By by) {
    if (by == By::Characters)
        return commonCharacters(oldText(area), newText(area), m_workLeft);
    return commonTokens(oldText(area), newText(area), by == By::Lines ? Tokens::Lines : Tokens::Words);
}

bool Comparison::joins(const ChangedPlace &last, const ChangedPlace &next) const {
    const qsizetype end = last.start + last.length;
    const QStringView between = m_after.sliced(end, next.start - end);
    return between.size() <= hardlyApart &&
           std::none_of(between.begin(), between.end(), [](QChar unit) { return unit.isSpace(); });
}

void Comparison::add(const ChangedPlace &place) {
    if (place.oldLength == 0 && place.length == 0)
        return;
    if (m_places.isEmpty() || !joins(m_places.last(), place)) {
        m_places += place;
        return;
    }
    ChangedPlace &last = m_places.last();
    last.oldLength = place.oldStart + place.oldLength - last.oldStart;
    last.length = place.start + place.length - last.start;
}

} // namespace

QList<ChangedPlace> changedPlaces(QStringView before, QStringView after) {
    return Comparison(before, after).places();
}

QString placesText(qsizetype count) {
    return count == 1 ? QStringLiteral("1 place changed")
                      : groupedNumber(count) + QStringLiteral(" places changed");
}

} // namespace tolvo
