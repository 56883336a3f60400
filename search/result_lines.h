// SPDX-License-Identifier: MIT
// What a Find All says about each hit.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// Counts lines up to positions that only grow, reading the text once.
class LineCounter {
  public:
    LineCounter(QStringView text, QStringView lineEnd) : m_text(text), m_lineEnd(lineEnd) {}

    /// The line, from 1, that holds the unit at an index from 0. A line end counts as part of the next line.
    [[nodiscard]] int lineOf(qsizetype index);

  private:
    QStringView m_text;
    QStringView m_lineEnd;
    qsizetype m_lineStart = 0;
    qsizetype m_nextEnd = -1; ///< where the present line ends; -1 if not looked for yet
    int m_line = 1;
};

/// Up to 25 units on each side of a hit, within its line. `position` counts from 1; a position one less moves
/// the window one unit to the left.
[[nodiscard]] QStringView hitContext(QStringView text, qsizetype position, qsizetype length);

/// One line of the list, and where the hit stands in it.
struct HitLine {
    QString text; ///< line ends as they stand in what was searched
    int hitStart = 0;
    int hitLength = 0;

    bool operator==(const HitLine &) const = default;
};
/// The line for a hit at an index from 0. `position` is that of its context, as for hitContext().
///   hitLine(1, u"a cat", 2, 3, 3) is {"Line 1: a cat", 10, 3}
[[nodiscard]] HitLine hitLine(int line, QStringView text, qsizetype index, qsizetype position,
                              qsizetype length);
/// The same on one line: each line end is a "\u00B6", each other control character a blank.
[[nodiscard]] HitLine shownHitLine(const HitLine &line);

/// A hit as one number: index from 0 times 10000 plus length. Lengths above 9999 spill into the index. Fails
/// with an overflow beyond 32 bits.
///   packLocation(123, 5) == 1230005
[[nodiscard]] qint32 packLocation(qsizetype index, qsizetype length);
/// What a packed number stands for.
struct HitLocation {
    int start;
    int length;
};
/// unpackLocation(1230005) is {123, 5}.
[[nodiscard]] HitLocation unpackLocation(qint32 location);

/// The caption of the list.
///   resultsCaption(1, u"x") == u"1 result found for x", resultsCaption(2, u"x") == u"2 results found for x"
[[nodiscard]] QString resultsCaption(int count, const QString &find);

} // namespace tolvo
