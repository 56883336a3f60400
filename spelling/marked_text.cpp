// SPDX-License-Identifier: MIT
#include "spelling/marked_text.h"

#include <algorithm>

namespace tolvo {

MarkedText::MarkedText(const QString &text)
    : m_text(text), m_marks(text.size(), static_cast<char>(Mark::Plain)) {
}

void MarkedText::clip(qsizetype &start, qsizetype &length) const {
    start = std::clamp<qsizetype>(start, 0, m_text.size());
    length = std::clamp<qsizetype>(length, 0, m_text.size() - start);
}

QList<MarkRun> MarkedText::runs(qsizetype start, qsizetype length) const {
    clip(start, length);
    QList<MarkRun> runs;
    for (qsizetype at = start; at < start + length;) {
        qsizetype end = at + 1;
        while (end < start + length && m_marks[end] == m_marks[at])
            ++end;
        runs.append(MarkRun{at, end - at, markAt(at)});
        at = end;
    }
    return runs;
}

void MarkedText::mark(qsizetype start, qsizetype length, Mark mark) {
    clip(start, length);
    if (length == 0)
        return;
    m_changes.append(Change{start, length, {}, m_marks.mid(start, length), true});
    std::fill_n(m_marks.begin() + start, length, static_cast<char>(mark));
}

void MarkedText::replace(qsizetype start, qsizetype length, QStringView replacement, Mark mark) {
    clip(start, length);
    m_changes.append(
        Change{start, replacement.size(), m_text.mid(start, length), m_marks.mid(start, length), false});
    m_text.replace(start, length, replacement.data(), replacement.size());
    m_marks.replace(start, length, QByteArray(replacement.size(), static_cast<char>(mark)));
}

void MarkedText::restore(qsizetype state) {
    while (m_changes.size() > state) {
        const Change change = m_changes.takeLast();
        m_marks.replace(change.start, change.newLength, change.oldMarks);
        if (!change.marksOnly)
            m_text.replace(change.start, change.newLength, change.oldText);
    }
}

} // namespace tolvo
