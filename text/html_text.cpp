// SPDX-License-Identifier: MIT
// The reader of HTML in text/page_text.h.
#include "text/html_tags.h"
#include "text/lines.h"
#include "text/notation.h"
#include "text/page_text.h"
#include "text/tables.h"

namespace tolvo {

namespace {

constexpr qsizetype deepest = 16; // of lists and quotations

bool isOneOf(const QString &name, QStringView list) {
    return list.contains(QString(u' ' + name + u' '));
}

/// Puts the text together: blanks are one blank, blocks stand on lines of their own.
class PageWriter {
  public:
    /// The next text begins a new line, with `blankLines` before it.
    void endLine(int blankLines) { m_breaks = m_result.isEmpty() ? 0 : std::max(m_breaks, blankLines + 1); }
    void breakLine() { m_breaks = std::min(m_breaks + 1, 2); }
    void setPreformatted(bool on) { m_preformatted = on; }
    void setPrefix(const QString &first, const QString &next) {
        m_prefix = first;
        m_nextPrefix = next;
    }

    void add(QStringView text) {
        for (const QChar c : text) {
            const bool blank = c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
            if (m_preformatted && c == u'\n')
                ++m_breaks;
            else if (m_preformatted && c == u'\r')
                continue;
            else if (blank && !m_preformatted)
                m_blank = true;
            else
                addUnit(c);
        }
    }

    /// Lines as they are, under the prefix.
    void addLines(QStringView lines) {
        forEachLine(lines, [this](QStringView line, bool) {
            endLine(0);
            for (const QChar c : line)
                addUnit(c);
        });
    }

    [[nodiscard]] QString result() const { return m_result; }

  private:
    void addUnit(QChar c) {
        const bool begins = m_breaks > 0 || m_result.isEmpty();
        for (; m_breaks > 0; --m_breaks)
            m_result += lineEnd;
        if (begins) {
            m_result += m_prefix;
            m_prefix = m_nextPrefix;
        } else if (m_blank) {
            m_result += u' ';
        }
        m_blank = false;
        m_result += c;
    }

    QString m_result;
    int m_breaks = 0;
    bool m_blank = false;
    bool m_preformatted = false;
    QString m_prefix;     ///< of the next line
    QString m_nextPrefix; ///< of those after it
};

class PageReader {
  public:
    explicit PageReader(QStringView text) : m_text(text), m_tags(text) {}

    QString read() {
        while (m_at < m_text.size()) {
            const qsizetype start = m_at;
            if (m_text[m_at] == u'<') {
                if (const auto tag = m_tags.take(m_at)) {
                    apply(*tag);
                    continue;
                }
                ++m_at;
            }
            const qsizetype next = m_text.indexOf(u'<', m_at);
            m_at = next < 0 ? m_text.size() : next;
            addText(htmlReferencesDecoded(m_text.sliced(start, m_at - start)).text);
        }
        endTable();
        return m_page.result();
    }

  private:
    struct List {
        bool numbered = false;
        int count = 0;
    };

    void addText(QStringView text) {
        if (m_inTable)
            m_cell += text;
        else
            m_page.add(text);
    }

    void apply(const HtmlTag &tag) {
        const QString &name = tag.name;
        if (!tag.closing && isOneOf(name, u" script style template svg title "))
            m_tags.skipContent(name, m_at);
        else if (name == u"a")
            applyLink(tag);
        else if (name == u"img" && !tag.closing)
            addText(tag.attribute(u"alt"));
        else if (isOneOf(name, u" table tr td th caption "))
            applyTable(tag);
        else if (m_inTable)
            m_cell += isOneOf(name, u" br p div li ") ? QStringView(u" ") : QStringView();
        else
            applyBlock(tag);
    }

    void applyBlock(const HtmlTag &tag) {
        const QString &name = tag.name;
        if (name == u"br") {
            m_page.breakLine();
        } else if (name == u"hr") {
            m_page.endLine(1);
            m_page.add(u"---");
            m_page.endLine(1);
        } else if (isOneOf(name, u" ul ol menu ")) {
            applyList(tag);
        } else if (name == u"li") {
            m_page.endLine(0);
            if (!tag.closing)
                beginItem();
        } else if (name == u"blockquote") {
            m_page.endLine(1);
            m_quotes = std::clamp<qsizetype>(m_quotes + (tag.closing ? -1 : 1), 0, deepest);
            setPrefix({});
        } else if (name == u"pre") {
            m_page.endLine(1);
            m_page.setPreformatted(!tag.closing);
        } else if (isOneOf(name, u" p h1 h2 h3 h4 h5 h6 dl figure ")) {
            m_page.endLine(m_lists.isEmpty() || name != u"p" ? 1 : 0);
        } else if (isOneOf(
                       name,
                       u" div section article header footer main nav aside form fieldset address figcaption "
                       u"dt dd body head html ")) {
            m_page.endLine(0);
        }
    }

    void applyList(const HtmlTag &tag) {
        if (tag.closing && !m_lists.isEmpty())
            m_lists.removeLast();
        m_page.endLine(m_lists.isEmpty() ? 1 : 0);
        if (!tag.closing && m_lists.size() < deepest)
            m_lists.append({tag.name == u"ol", 0});
        setPrefix({});
    }

    void beginItem() {
        List outside;
        List &list = m_lists.isEmpty() ? outside : m_lists.last();
        ++list.count;
        setPrefix(list.numbered ? QString::number(list.count) + QStringLiteral(". ") : QStringLiteral("- "));
    }

    /// Quotation marks and indents before the lines; the mark of a list before the next one.
    void setPrefix(const QString &mark) {
        const qsizetype depth = std::max<qsizetype>(0, m_lists.size() - 1);
        const QString quote = QStringLiteral("> ").repeated(m_quotes);
        const QString indent = QString(depth * 2, u' ');
        const QString next = quote + QString(m_lists.size() * 2, u' ');
        m_page.setPrefix(mark.isEmpty() ? next : quote + indent + mark, next);
    }

    /// The address after a link, unless the link shows it.
    void applyLink(const HtmlTag &tag) {
        if (!tag.closing) {
            m_address = tag.attribute(u"href");
            m_linkStart = m_at;
            return;
        }
        constexpr qsizetype longestShown = 2048;
        const bool leads = !m_address.isEmpty() && !m_address.startsWith(u'#') &&
                           !m_address.startsWith(u"javascript:", Qt::CaseInsensitive);
        const QStringView shown = m_text.sliced(m_linkStart, std::min(m_at - m_linkStart, longestShown));
        if (leads && !shown.contains(m_address))
            addText(QString(QStringLiteral(" (") + m_address + u')'));
        m_address.clear();
    }

    void applyTable(const HtmlTag &tag) {
        if (tag.name == u"table") {
            if (tag.closing)
                endTable();
            else if (!m_inTable)
                m_inTable = true;
            return;
        }
        if (!m_inTable)
            return;
        const bool row = tag.name == u"tr" || tag.name == u"caption";
        if (m_cellOpen || row)
            endCell();
        m_cellOpen = !tag.closing && !row;
        if (row)
            endRow();
    }

    void endCell() {
        const QString text = m_cell.simplified();
        if (m_cellOpen || !text.isEmpty())
            m_row += text;
        m_cell.clear();
        m_cellOpen = false;
    }

    void endRow() {
        if (!m_row.isEmpty())
            m_rows += m_row;
        m_row.clear();
    }

    void endTable() {
        if (!m_inTable)
            return;
        endCell();
        endRow();
        m_inTable = false;
        const bool isOneColumn =
            std::all_of(m_rows.begin(), m_rows.end(), [](const QStringList &row) { return row.size() == 1; });
        QStringList lines;
        for (const QStringList &row : m_rows)
            lines += row.first();
        m_page.endLine(1);
        m_page.addLines(isOneColumn ? lines.join(lineEnd) : alignedTable(m_rows));
        m_rows.clear();
        m_page.endLine(1);
    }

    QStringView m_text;
    HtmlTags m_tags;
    qsizetype m_at = 0;
    PageWriter m_page;
    QList<List> m_lists;
    qsizetype m_quotes = 0;
    QString m_address; ///< of the link that is open
    qsizetype m_linkStart = 0;
    bool m_inTable = false;
    bool m_cellOpen = false;
    QString m_cell;
    QStringList m_row;
    Table m_rows; ///< none is empty
};

} // namespace

QString htmlAsText(QStringView text) {
    return PageReader(text).read();
}

} // namespace tolvo
