// SPDX-License-Identifier: MIT
// The reader of Markdown in text/page_text.h: its blocks.
#include "text/lines.h"
#include "text/markdown_inline.h"
#include "text/marked_lines.h"
#include "text/page_text.h"
#include "text/tables.h"

#include <algorithm>

namespace tolvo {

namespace {

/// Whether a line holds nothing but three or more of one of the signs, and blanks.
bool isRule(QStringView line, QStringView signs) {
    QChar sign;
    qsizetype count = 0;
    for (const QChar c : line) {
        if (c.isSpace())
            continue;
        if (!signs.contains(c) || (!sign.isNull() && c != sign))
            return false;
        sign = c;
        ++count;
    }
    return count >= 3;
}

/// The line under the head of a table: | --- | :-: |
bool isTableRule(QStringView line) {
    const auto fits = [](QChar c) { return QStringView(u"|-: ").contains(c); };
    return line.contains(u'|') && line.contains(u'-') && std::all_of(line.begin(), line.end(), fits);
}

/// The fence of a code block at the front: three or more backticks or tildes; empty for none.
QStringView fenceOf(QStringView line) {
    const QStringView text = line.trimmed();
    qsizetype length = 0;
    while (length < text.size() && (text[0] == u'`' || text[0] == u'~') && text[length] == text[0])
        ++length;
    return length >= 3 ? text.first(length) : QStringView();
}

/// "[name]: address" as a definition of a link; false for another line.
bool addDefinition(QStringView line, MarkdownLinks &links) {
    const QStringView text = line.trimmed();
    const qsizetype close = text.indexOf(u"]:");
    if (!text.startsWith(u'[') || text.startsWith(u"[^") || close < 2)
        return false;
    QStringView address = text.sliced(close + 2).trimmed();
    const qsizetype blank = address.indexOf(u' ');
    address = blank < 0 ? address : address.first(blank);
    if (address.startsWith(u'<') && address.endsWith(u'>') && address.size() > 2)
        address = address.sliced(1).chopped(1);
    if (address.isEmpty())
        return false;
    links.insert(text.sliced(1, close - 1).toString().toLower(), address.toString());
    return true;
}

class MarkdownReader {
  public:
    explicit MarkdownReader(QStringView text) : m_lines(splitLines(text)) {
        bool inCode = false;
        for (const QStringView line : m_lines) {
            inCode = inCode != !fenceOf(line).isEmpty();
            m_defines += !inCode && addDefinition(line, m_links);
        }
    }

    QString read() {
        for (m_at = 0; m_at < m_lines.size(); ++m_at) {
            const QStringView line = m_lines.at(m_at);
            if (const QStringView fence = fenceOf(line); !fence.isEmpty())
                takeCode(fence);
            else if (m_defines.at(m_at))
                dropDefinition();
            else if (isTableAt(m_at))
                takeTable();
            else
                takeLine(line);
        }
        endParagraph();
        return m_result.join(lineEnd);
    }

  private:
    /// A definition goes with the blank line before it.
    void dropDefinition() {
        endParagraph();
        if (!m_result.isEmpty() && m_result.last().isEmpty())
            m_result.removeLast();
    }

    void takeLine(QStringView line) {
        const QStringView words = line.trimmed();
        const bool inParagraph = !m_paragraph.isEmpty();
        if (words.isEmpty()) {
            endParagraph();
            m_result += QString();
        } else if (inParagraph && !m_marked && isUnderline(words)) {
            endParagraph();
        } else if (isRule(words, u"*-_")) {
            endParagraph();
            m_result += QStringLiteral("---");
        } else if (const QStringView heading = headingOf(words); !heading.isNull()) {
            endParagraph();
            m_result += markdownInline(heading, m_links);
        } else if (!inParagraph && (line.startsWith(u"    ") || line.startsWith(u'\t')) &&
                   markedLine(line).list.isEmpty()) {
            m_result += line.toString(); // a code
        } else {
            takeText(line);
        }
    }

    /// A line under a heading, of one sign alone.
    [[nodiscard]] static bool isUnderline(QStringView words) {
        const QChar sign = words.front();
        return (sign == u'=' || sign == u'-') &&
               std::all_of(words.begin(), words.end(), [sign](QChar c) { return c == sign; });
    }

    /// The text of a heading with "#"; null for another line.
    [[nodiscard]] static QStringView headingOf(QStringView words) {
        qsizetype level = 0;
        while (level < words.size() && words[level] == u'#')
            ++level;
        if (level == 0 || level > 6 || (level < words.size() && words[level] != u' '))
            return {};
        QStringView text = words.sliced(level).trimmed();
        qsizetype end = text.size();
        while (end > 0 && text[end - 1] == u'#')
            --end;
        if (end == 0 || text[end - 1] == u' ')
            text = text.first(end).trimmed();
        return text.isNull() ? QStringView(u"") : text;
    }

    /// A line of a paragraph; one with a mark of its own begins a new one.
    void takeText(QStringView line) {
        const MarkedLine marked = quotedOrListed(line);
        if (!marked.signs.isEmpty() || !marked.list.isEmpty()) {
            endParagraph();
            QString list = marked.list.toString();
            if (list.startsWith(u'*') || list.startsWith(u'+'))
                list[0] = u'-';
            m_mark = marked.indent.toString() + marked.signs.toString() + list;
            m_marked = true;
            m_paragraph +=
                line.sliced(marked.indent.size() + marked.signs.size() + marked.list.size()).toString();
        } else {
            m_paragraph += line.toString();
        }
    }

    /// The line taken apart, with signs of quotations only.
    [[nodiscard]] static MarkedLine quotedOrListed(QStringView line) {
        MarkedLine marked = markedLine(line);
        if (!marked.signs.isEmpty() && marked.signs.front() != u'>')
            marked = MarkedLine{marked.indent, {}, {}, line.sliced(marked.indent.size())};
        return marked;
    }

    void endParagraph() {
        if (!m_paragraph.isEmpty()) {
            for (QString &line : m_paragraph) {
                if (line.endsWith(u'\\'))
                    line.chop(1); // a line break that is meant
            }
            m_result += m_mark + markdownInline(m_paragraph.join(lineEnd), m_links);
        }
        m_paragraph.clear();
        m_mark.clear();
        m_marked = false;
    }

    void takeCode(QStringView fence) {
        endParagraph();
        for (++m_at; m_at < m_lines.size(); ++m_at) {
            const QStringView end = fenceOf(m_lines.at(m_at));
            if (end.startsWith(fence) && m_lines.at(m_at).trimmed() == end)
                return;
            m_result += m_lines.at(m_at).toString();
        }
    }

    [[nodiscard]] bool isTableAt(qsizetype line) const {
        return line + 1 < m_lines.size() && m_lines.at(line).contains(u'|') &&
               isTableRule(m_lines.at(line + 1));
    }

    void takeTable() {
        endParagraph();
        Table rows;
        for (; m_at < m_lines.size() && m_lines.at(m_at).contains(u'|'); ++m_at) {
            if (isTableRule(m_lines.at(m_at)))
                continue;
            QStringView row = m_lines.at(m_at).trimmed();
            row = row.startsWith(u'|') ? row.sliced(1) : row;
            row = row.endsWith(u'|') && !row.endsWith(u"\\|") ? row.chopped(1) : row;
            QStringList cells;
            for (const QString &cell :
                 QString(row.toString()).replace(QStringLiteral("\\|"), QString(QChar(u'\x1F'))).split(u'|'))
                cells += markdownInline(cell.trimmed(), m_links).replace(u'\x1F', u'|').simplified();
            rows += cells;
        }
        --m_at;
        m_result += alignedTable(rows);
    }

    QList<QStringView> m_lines;
    QList<bool> m_defines; ///< which lines are definitions of links
    MarkdownLinks m_links;
    qsizetype m_at = 0;
    QString m_mark; ///< of the paragraph, before its first line
    bool m_marked = false;
    QStringList m_paragraph;
    QStringList m_result;
};

} // namespace

QString markdownAsText(QStringView text) {
    return MarkdownReader(text).read();
}

} // namespace tolvo
