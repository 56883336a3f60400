// SPDX-License-Identifier: MIT
#include "text/markdown_inline.h"

#include "text/html_tags.h"
#include "text/notation.h"

#include <QSet>
#include <QStringBuilder>
#include <algorithm>
#include <map>

namespace tolvo {

namespace {

bool isPunctuation(QChar c) {
    return c.isPunct() || c.isSymbol();
}

class InlineReader {
  public:
    InlineReader(QStringView text, const MarkdownLinks &links) : m_text(text), m_links(links), m_tags(text) {}

    QString read() {
        while (m_at < m_text.size()) {
            const QChar c = m_text[m_at];
            const bool taken = c == u'\\'                            ? takeEscape()
                               : c == u'`'                           ? takeCode()
                               : c == u'*' || c == u'_' || c == u'~' ? takeEmphasis()
                               : c == u'['                           ? takeOpening()
                               : c == u'!' && at(1) == u'['          ? takeImage()
                               : c == u']'                           ? takeClosing()
                               : c == u'<'                           ? takeTag()
                                                                     : false;
            if (!taken)
                m_result += m_text[m_at++];
        }
        return withoutMarks();
    }

  private:
    /// A run of marks of emphasis in the result; those that found a partner go.
    struct Run {
        qsizetype start;
        qsizetype length;
        qsizetype gone = 0;
    };

    [[nodiscard]] QChar at(qsizetype distance) const {
        const qsizetype place = m_at + distance;
        return place < 0 || place >= m_text.size() ? QChar(u'\n') : m_text[place];
    }

    bool takeEscape() {
        if (at(1).unicode() >= 0x80 || !isPunctuation(at(1)))
            return false;
        m_result += at(1);
        m_at += 2;
        return true;
    }

    /// A code between backticks of the same number.
    bool takeCode() {
        qsizetype length = 1;
        while (at(length) == u'`')
            ++length;
        const QString fence(length, u'`');
        if (m_openFences.contains(length)) {
            m_result += fence;
            m_at += length;
            return true;
        }
        qsizetype end = m_at + length;
        for (;;) {
            end = m_text.indexOf(fence, end);
            if (end < 0) {
                m_openFences.insert(length);
                return takeCode();
            }
            qsizetype after = end;
            while (after < m_text.size() && m_text[after] == u'`')
                ++after;
            if (after - end == length)
                break;
            end = after;
        }
        QStringView code = m_text.sliced(m_at + length, end - m_at - length);
        if (code.size() > 2 && code.startsWith(u' ') && code.endsWith(u' '))
            code = code.sliced(1).chopped(1);
        m_result += code;
        m_at = end + length;
        return true;
    }

    bool takeEmphasis() {
        const QChar mark = at(0);
        qsizetype length = 1;
        while (at(length) == mark)
            ++length;
        const QChar before = at(-1);
        const QChar after = at(length);
        const bool left =
            !after.isSpace() && (!isPunctuation(after) || before.isSpace() || isPunctuation(before));
        const bool right =
            !before.isSpace() && (!isPunctuation(before) || after.isSpace() || isPunctuation(after));
        const bool inWord = mark == u'_' && left && right && !isPunctuation(before) && !isPunctuation(after);
        Run run{m_result.size(), length};
        if (right && !inWord && (mark != u'~' || length == 2))
            closeEmphasis(mark, run);
        m_runs.append(run);
        if (left && !inWord && run.gone < run.length && (mark != u'~' || length == 2))
            m_open[mark].append(m_runs.size() - 1);
        m_result += m_text.sliced(m_at, length);
        m_at += length;
        return true;
    }

    void closeEmphasis(QChar mark, Run &run) {
        QList<qsizetype> &open = m_open[mark];
        while (!open.isEmpty() && run.gone < run.length) {
            Run &partner = m_runs[open.last()];
            const qsizetype both = std::min(partner.length - partner.gone, run.length - run.gone);
            partner.gone += both;
            run.gone += both;
            if (partner.gone == partner.length)
                open.removeLast();
        }
    }

    bool takeOpening() {
        m_brackets.append({m_result.size(), m_at, false});
        m_result += u'[';
        ++m_at;
        return true;
    }

    bool takeImage() {
        m_brackets.append({m_result.size(), m_at, true});
        m_result += u"![";
        m_at += 2;
        return true;
    }

    struct Address {
        QString address;
        qsizetype end;
    };

    /// "(address "title")" at a place.
    [[nodiscard]] std::optional<Address> addressAt(qsizetype place) const {
        if (place >= m_text.size() || m_text[place] != u'(')
            return {};
        qsizetype end = place + 1;
        int depth = 0;
        for (; end < m_text.size() && (m_text[end] != u')' || depth > 0); ++end) {
            if (m_text[end].isSpace() || m_text[end] == u'[')
                break;
            depth += m_text[end] == u'(' ? 1 : m_text[end] == u')' ? -1 : 0;
        }
        QStringView address = m_text.sliced(place + 1, end - place - 1);
        if (end < m_text.size() && m_text[end] == u' ')
            end = endOfTitle(end + 1);
        if (end < 0 || end >= m_text.size() || m_text[end] != u')')
            return {};
        if (address.startsWith(u'<') && address.endsWith(u'>'))
            address = address.sliced(1).chopped(1);
        return Address{address.toString(), end + 1};
    }

    /// Where a title in quotes is over; -1 if none is at the place.
    [[nodiscard]] qsizetype endOfTitle(qsizetype place) const {
        constexpr qsizetype longest = 1000;
        if (place >= m_text.size() || (m_text[place] != u'"' && m_text[place] != u'\''))
            return -1;
        const qsizetype end = m_text.mid(place + 1, longest).indexOf(m_text[place]);
        return end < 0 ? -1 : place + 1 + end + 1;
    }

    /// "[name]" at a place, or the words of the link themselves, as the name of a definition.
    [[nodiscard]] std::optional<Address> definitionAt(qsizetype place, QStringView words) const {
        constexpr qsizetype longest = 1000;
        if (m_links.isEmpty() || words.size() > longest)
            return {};
        qsizetype end = place;
        if (place < m_text.size() && m_text[place] == u'[') {
            const qsizetype close = m_text.mid(place, longest).indexOf(u']');
            if (close > 1)
                words = m_text.sliced(place + 1, close - 1);
            end = close < 0 ? place : place + close + 1;
        }
        const auto link = m_links.constFind(words.toString().toLower());
        return link == m_links.constEnd() ? std::nullopt : std::optional(Address{*link, end});
    }

    bool takeClosing() {
        if (m_brackets.isEmpty())
            return false;
        const Bracket bracket = m_brackets.takeLast();
        const qsizetype mark = bracket.image ? 2 : 1;
        const QStringView words = m_text.sliced(bracket.inText + mark, m_at - bracket.inText - mark);
        auto address = addressAt(m_at + 1);
        if (!address)
            address = definitionAt(m_at + 1, words);
        if (!address)
            return false;
        m_runs.append({bracket.inResult, mark, mark});
        m_at = address->end;
        if (!bracket.image && !address->address.isEmpty() && address->address != words)
            m_result += QStringLiteral(" (") % address->address % u')';
        return true;
    }

    bool takeTag() {
        const qsizetype start = m_at;
        const auto tag = m_tags.take(m_at);
        if (!tag)
            return false;
        const QStringView whole = m_text.sliced(start + 1, m_at - start - 2);
        const bool address =
            (whole.contains(u"://") || whole.contains(u'@') || whole.startsWith(u"mailto:")) &&
            !whole.contains(u' ') && !whole.contains(u'=');
        if (address)
            m_result += whole;
        else if (tag->name == u"br")
            m_result += u"\r\n";
        return true;
    }

    /// The result without the marks that have done their work.
    [[nodiscard]] QString withoutMarks() {
        std::sort(m_runs.begin(), m_runs.end(),
                  [](const Run &one, const Run &other) { return one.start < other.start; });
        QString plain;
        qsizetype from = 0;
        for (const Run &run : m_runs) {
            plain += QStringView(m_result).sliced(from, run.start - from);
            from = run.start + run.gone;
        }
        plain += QStringView(m_result).sliced(from);
        return plain;
    }

    struct Bracket {
        qsizetype inResult;
        qsizetype inText;
        bool image;
    };

    QStringView m_text;
    const MarkdownLinks &m_links;
    HtmlTags m_tags;
    qsizetype m_at = 0;
    QString m_result;
    QList<Run> m_runs;
    std::map<QChar, QList<qsizetype>> m_open; ///< runs that may open, by their mark
    QList<Bracket> m_brackets;
    QSet<qsizetype> m_openFences; ///< lengths of which no other fence follows
};

} // namespace

QString markdownInline(QStringView text, const MarkdownLinks &links) {
    return htmlReferencesDecoded(InlineReader(text, links).read()).text;
}

} // namespace tolvo
