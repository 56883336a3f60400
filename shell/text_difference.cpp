// SPDX-License-Identifier: MIT
#include "shell/text_difference.h"

#include "platform/clipboard.h"
#include "platform/text_box.h"
#include "shell/common_parts.h"
#include "shell/selection_tools.h"
#include "shell/tool_call.h"
#include "shell/word_difference.h"
#include "text/lines.h"
#include "text/text_host.h"

#include <QStringBuilder>
#include <vector>

namespace tolvo {

namespace {

/// Lines with the places where they begin; every line ends in CR LF.
struct Lines {
    explicit Lines(QStringView text) : whole(text % lineEnd) {
        for (qsizetype start = 0; start < whole.size();) {
            const qsizetype end = whole.indexOf(lineEnd, start);
            starts.push_back(start);
            start = end + lineEnd.size();
        }
        starts.push_back(whole.size());
    }

    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(starts.size()) - 1; }
    [[nodiscard]] QStringView at(qsizetype line) const {
        const auto index = static_cast<std::size_t>(line);
        return QStringView(whole).sliced(starts[index], starts[index + 1] - starts[index]);
    }

    QString whole;
    std::vector<qsizetype> starts;
};

class Difference {
  public:
    Difference(QStringView before, QStringView after) : m_old(before), m_new(after) {}

    QString text() {
        for (const CommonPart &part : commonTokens(m_old.whole, m_new.whole, Tokens::Lines))
            meet(part);
        compare(m_old.count(), m_new.count());
        m_result.chop(lineEnd.size());
        return m_result;
    }

  private:
    /// Goes on to a line that stands in both, if what the two texts have in common is one.
    void meet(const CommonPart &part) {
        const auto lineOf = [](const Lines &lines, qsizetype from, qsizetype start) {
            while (from < lines.count() && lines.starts[static_cast<std::size_t>(from)] < start)
                ++from;
            return from;
        };
        m_oldSeen = lineOf(m_old, m_oldSeen, part.oldStart);
        m_newSeen = lineOf(m_new, m_newSeen, part.start);
        if (m_oldSeen < m_oldAt || m_newSeen < m_newAt || m_oldSeen == m_old.count() ||
            m_newSeen == m_new.count() || m_old.at(m_oldSeen) != m_new.at(m_newSeen))
            return;
        compare(m_oldSeen, m_newSeen);
    }

    void add(QStringView mark, const Lines &lines, qsizetype &at) {
        m_result += mark;
        m_result += lines.at(at++);
    }

    void addCommon() {
        add(u"  ", m_old, m_oldAt);
        ++m_newAt;
    }

    /// Compares what is left before a place in each text.
    void compare(qsizetype oldEnd, qsizetype newEnd) {
        while (m_oldAt < oldEnd && m_newAt < newEnd && m_old.at(m_oldAt) == m_new.at(m_newAt))
            addCommon();
        qsizetype same = 0;
        while (m_oldAt < oldEnd - same && m_newAt < newEnd - same &&
               m_old.at(oldEnd - same - 1) == m_new.at(newEnd - same - 1))
            ++same;
        const qsizetype work = (oldEnd - same - m_oldAt) * (newEnd - same - m_newAt);
        if (work > 0 && work <= m_workLeft) {
            m_workLeft -= work;
            findLongest(oldEnd - same, newEnd - same);
        }
        while (m_oldAt < oldEnd - same)
            add(u"- ", m_old, m_oldAt);
        while (m_newAt < newEnd - same)
            add(u"+ ", m_new, m_newAt);
        while (m_oldAt < oldEnd)
            addCommon();
    }

    /// By the table of the longest common subsequence.
    void findLongest(qsizetype oldEnd, qsizetype newEnd) {
        const qsizetype rows = oldEnd - m_oldAt;
        const qsizetype columns = newEnd - m_newAt;
        std::vector<int> longest(static_cast<std::size_t>((rows + 1) * (columns + 1)));
        const auto cell = [&](qsizetype row, qsizetype column) -> int & {
            return longest[static_cast<std::size_t>(row * (columns + 1) + column)];
        };
        for (qsizetype row = rows - 1; row >= 0; --row) {
            for (qsizetype column = columns - 1; column >= 0; --column)
                cell(row, column) = m_old.at(m_oldAt + row) == m_new.at(m_newAt + column)
                                        ? cell(row + 1, column + 1) + 1
                                        : std::max(cell(row + 1, column), cell(row, column + 1));
        }
        for (qsizetype row = 0, column = 0; row < rows && column < columns;) {
            if (m_old.at(m_oldAt) == m_new.at(m_newAt)) {
                addCommon();
                ++row;
                ++column;
            } else if (cell(row + 1, column) >= cell(row, column + 1)) {
                add(u"- ", m_old, m_oldAt);
                ++row;
            } else {
                add(u"+ ", m_new, m_newAt);
                ++column;
            }
        }
    }

    Lines m_old;
    Lines m_new;
    qsizetype m_oldAt = 0; ///< the next line of each text
    qsizetype m_newAt = 0;
    qsizetype m_oldSeen = 0; ///< how far the common lines have been looked up
    qsizetype m_newSeen = 0;
    qsizetype m_workLeft = 4'000'000;
    QString m_result;
};

/// Puts a difference in the place of the text; the legend says how to read it.
void compare(const ToolCall &call, QString (*difference)(QStringView, QStringView), const QString &legend) {
    TextBox &box = call.context.box;
    TextHost &host = call.context.host;
    const auto clipboard = answered(call.services.clipboard.readText(), host);
    if (!clipboard)
        return;
    if (clipboard->isEmpty()) {
        host.setStatus(QStringLiteral("There is no text on the clipboard"));
        return;
    }
    const bool selected = box.SelLength() > 0;
    const QString text = selected ? box.SelText() : box.Text();
    if (text == *clipboard) {
        host.setStatus(QStringLiteral("The text is the same as that of the clipboard"));
        return;
    }
    if (selected)
        replaceAndSelect(box, difference(*clipboard, text));
    else
        box.setText(difference(*clipboard, text));
    host.setStatus(legend);
}

} // namespace

QString lineDifference(QStringView before, QStringView after) {
    return Difference(before, after).text();
}

void compareWithClipboard(const ToolCall &call) {
    extendSelectionToLines(call.context.box);
    compare(call, lineDifference,
            QStringLiteral("- lines are only on the clipboard, + lines only in the text"));
}

void compareWordsWithClipboard(const ToolCall &call) {
    compare(call, wordDifference,
            QStringLiteral("[-words-] are only on the clipboard, {+words+} only in the text"));
}

} // namespace tolvo
