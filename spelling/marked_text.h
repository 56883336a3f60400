// SPDX-License-Identifier: MIT
// A text in which words are marked: what the checking dialog shows and corrects.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>
#include <cstdint>

namespace tolvo {

/// How a character is shown.
enum class Mark : char {
    Plain,    ///< black
    Mistake,  ///< red (255, 0, 0) and bold
    Replaced, ///< green (0, 128, 0)
};

/// The colour of a mark on a light background, 0xRRGGBB.
[[nodiscard]] constexpr std::uint32_t markColour(Mark mark) {
    return mark == Mark::Mistake ? 0xFF0000 : mark == Mark::Replaced ? 0x008000 : 0x000000;
}

/// A stretch of equal marks.
struct MarkRun {
    qsizetype start;
    qsizetype length;
    Mark mark;
};

/// A text and the mark of each of its UTF-16 units. Offsets count units from 0; a stretch is cut to the text.
/// Every change is kept, so that text and marks can be restored to any earlier state; a state costs as much
/// as the change after it, not a copy of the text.
class MarkedText {
  public:
    /// A text of plain characters without earlier states.
    explicit MarkedText(const QString &text = {});

    [[nodiscard]] const QString &text() const { return m_text; }
    /// The mark of a unit, which must be in the text.
    [[nodiscard]] Mark markAt(qsizetype offset) const { return static_cast<Mark>(m_marks.at(offset)); }
    /// The marks as one byte for each unit.
    [[nodiscard]] const QByteArray &marks() const { return m_marks; }
    /// The runs of equal marks in a stretch, in order.
    [[nodiscard]] QList<MarkRun> runs(qsizetype start, qsizetype length) const;

    /// Marks a stretch.
    void mark(qsizetype start, qsizetype length, Mark mark);
    /// Replaces a stretch by a text, all of it with one mark.
    void replace(qsizetype start, qsizetype length, QStringView replacement, Mark mark);

    /// The current state, for restore().
    [[nodiscard]] qsizetype state() const { return m_changes.size(); }
    /// Undoes all changes since a state.
    void restore(qsizetype state);

  private:
    struct Change {
        qsizetype start;
        qsizetype newLength;
        QString oldText;
        QByteArray oldMarks;
        bool marksOnly;
    };
    void clip(qsizetype &start, qsizetype &length) const;

    QString m_text;
    QByteArray m_marks;
    QList<Change> m_changes;
};

} // namespace tolvo
