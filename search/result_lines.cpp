// SPDX-License-Identifier: MIT
#include "search/result_lines.h"

#include "base/failure.h"
#include "search/joined.h"

#include <algorithm>
#include <limits>

namespace tolvo {

namespace {

constexpr qsizetype contextUnits = 25;
constexpr qint64 locationFactor = 10000;

bool endsLine(QStringView text, qsizetype position) {
    return position <= text.size() && (text[position - 1] == u'\r' || text[position - 1] == u'\n');
}

} // namespace

int LineCounter::lineOf(qsizetype index) {
    for (;;) {
        if (m_nextEnd < 0) {
            const qsizetype end = m_text.indexOf(m_lineEnd, m_lineStart);
            m_nextEnd = end < 0 ? m_text.size() + 1 : end;
        }
        if (m_nextEnd > index)
            return m_line;
        m_lineStart = m_nextEnd + m_lineEnd.size();
        m_nextEnd = -1;
        ++m_line;
    }
}

QStringView hitContext(QStringView text, qsizetype position, qsizetype length) {
    qsizetype start = std::max<qsizetype>(1, position - contextUnits);
    for (qsizetype i = position; i >= start; --i) {
        if (endsLine(text, i)) {
            start = i + 1;
            break;
        }
    }
    qsizetype size = length + (position - start) + contextUnits;
    if (start + size >= text.size())
        size = text.size() - start + 1;
    for (qsizetype i = position + length; i <= start + size; ++i) {
        if (endsLine(text, i)) {
            size = i - start;
            break;
        }
    }
    return text.sliced(start - 1, std::min(size, text.size() - start + 1));
}

HitLine hitLine(int line, QStringView text, qsizetype index, qsizetype position, qsizetype length) {
    const QStringView context = hitContext(text, position, length);
    HitLine result{.text = joined({u"Line ", QString::number(line), u": "})};
    const qsizetype contextStart = result.text.size();
    const qsizetype before = contextStart + (index - (context.data() - text.data()));
    result.text += context;
    // The context of a hit that begins with a line end begins after it.
    const qsizetype start = std::clamp(before, contextStart, result.text.size());
    result.hitStart = static_cast<int>(start);
    result.hitLength =
        static_cast<int>(std::clamp<qsizetype>(before + length - start, 0, result.text.size() - start));
    return result;
}

HitLine shownHitLine(const HitLine &line) {
    HitLine shown;
    const int hitEnd = line.hitStart + line.hitLength;
    for (int i = 0; i < line.text.size(); ++i) {
        const QChar unit = line.text[i];
        if (i == line.hitStart)
            shown.hitStart = static_cast<int>(shown.text.size());
        if (unit != u'\r' || !QStringView(line.text).sliced(i + 1).startsWith(u'\n'))
            shown.text += unit == u'\r' || unit == u'\n' ? QChar(u'\u00B6')
                          : unit < u' '                  ? QChar(u' ')
                                                         : unit;
        if (i + 1 == hitEnd)
            shown.hitLength = static_cast<int>(shown.text.size()) - shown.hitStart;
    }
    return shown;
}

qint32 packLocation(qsizetype index, qsizetype length) {
    const qint64 location = qint64{index} * locationFactor + length;
    if (location > std::numeric_limits<qint32>::max())
        failOverflow();
    return static_cast<qint32>(location);
}

HitLocation unpackLocation(qint32 location) {
    return {static_cast<int>(location / locationFactor), static_cast<int>(location % locationFactor)};
}

QString resultsCaption(int count, const QString &find) {
    return count == 1 ? QStringLiteral("1 result found for ") + find
                      : QString::number(count) + QStringLiteral(" results found for ") + find;
}

} // namespace tolvo
