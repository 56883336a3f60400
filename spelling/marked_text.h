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

/// The colour of a mark as it is meant for a light background, 0xRRGGBB.
[[nodiscard]] constexpr std::uint32_t markColour(Mark mark) {
    return mark == Mark::Mistake ? 0xFF0000 : mark == Mark::Replaced ? 0x008000 : 0x000000;
}

/// A stretch of equal marks.
struct MarkRun {
    qsizetype start;
    qsizetype length;
    Mark mark;
};

/// Offsets count UTF-16 units from 0; what lies outside the text is cut off. Every change is remembered, so
/// that the text with its marks can be taken back to any earlier state; a state costs as much as the change
/// that follows it, not a copy of the text.
class MarkedText {
  public:
    /// All plain, with nothing to take back.
    explicit MarkedText(const QString &text = {});

    [[nodiscard]] const QString &text() const { return m_text; }
    [[nodiscard]] Mark markAt(qsizetype offset) const { return static_cast<Mark>(m_marks.at(offset)); }
    /// One byte for each unit of the text.
    [[nodiscard]] const QByteArray &marks() const { return m_marks; }
    /// The marks of a stretch, front to back.
    [[nodiscard]] QList<MarkRun> runs(qsizetype start, qsizetype length) const;

    void mark(qsizetype start, qsizetype length, Mark mark);
    void replace(qsizetype start, qsizetype length, QStringView replacement, Mark mark);

    /// A name for the present state.
    [[nodiscard]] qsizetype state() const { return m_changes.size(); }
    /// Takes back all changes since that state.
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
