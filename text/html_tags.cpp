// SPDX-License-Identifier: MIT
#include "text/html_tags.h"

#include "text/notation.h"

namespace tolvo {

namespace {

bool isNameUnit(QChar c) {
    return c.unicode() < 0x80 && (c.isLetterOrNumber() || c == u'-' || c == u':');
}

} // namespace

QString HtmlTag::attribute(QStringView wanted) const {
    for (qsizetype i = 0; i < inside.size();) {
        const qsizetype start = i;
        while (i < inside.size() && !inside[i].isSpace() && inside[i] != u'=')
            ++i;
        const QStringView found = inside.sliced(start, i - start);
        while (i < inside.size() && inside[i].isSpace())
            ++i;
        if (i == inside.size() || inside[i] != u'=') {
            i += i == start ? 1 : 0;
            continue;
        }
        ++i;
        while (i < inside.size() && inside[i].isSpace())
            ++i;
        const QChar quote = i < inside.size() ? inside[i] : QChar();
        const bool quoted = quote == u'"' || quote == u'\'';
        const qsizetype from = quoted ? ++i : i;
        while (i < inside.size() && (quoted ? inside[i] != quote : !inside[i].isSpace()))
            ++i;
        if (found.compare(wanted, Qt::CaseInsensitive) == 0)
            return htmlReferencesDecoded(inside.sliced(from, i - from)).text.trimmed();
        i += quoted ? 1 : 0;
    }
    return {};
}

qsizetype HtmlTags::endOfTag(qsizetype start) {
    if (!m_mayEnd)
        return -1;
    QChar quote;
    for (qsizetype i = start; m_quotesCount && i < m_text.size(); ++i) {
        const QChar c = m_text[i];
        if (!quote.isNull())
            quote = c == quote ? QChar() : quote;
        else if (c == u'>')
            return i;
        else if ((c == u'"' || c == u'\'') && m_text[i - 1] == u'=')
            quote = c;
    }
    m_quotesCount = false;
    const qsizetype end = m_text.indexOf(u'>', start);
    m_mayEnd = end >= 0;
    return end;
}

std::optional<HtmlTag> HtmlTags::take(qsizetype &at) {
    const QStringView rest = m_text.sliced(at);
    if (rest.startsWith(u"<!--")) {
        const qsizetype end = m_commentsEnd ? m_text.indexOf(u"-->", at + 4) : -1;
        m_commentsEnd = end >= 0;
        if (end < 0)
            return {};
        at = end + 3;
        return HtmlTag{};
    }
    const bool closing = rest.startsWith(u"</");
    const qsizetype name = at + (closing ? 2 : 1);
    const QChar first = name < m_text.size() ? m_text[name] : QChar();
    const bool declaration = first == u'!' || first == u'?';
    if (!declaration && !(first.unicode() < 0x80 && first.isLetter()))
        return {};
    const qsizetype end = endOfTag(name);
    if (end < 0)
        return {};
    qsizetype nameEnd = name;
    while (nameEnd < end && isNameUnit(m_text[nameEnd]))
        ++nameEnd;
    at = end + 1;
    return HtmlTag{m_text.sliced(name, nameEnd - name).toString().toLower(), closing,
                   m_text.sliced(nameEnd, end - nameEnd)};
}

void HtmlTags::skipContent(const QString &name, qsizetype &at) {
    if (m_neverClosed.contains(name))
        return;
    const qsizetype end = m_text.indexOf(QString(QStringLiteral("</") + name), at, Qt::CaseInsensitive);
    if (end >= 0)
        at = end;
    else
        m_neverClosed += name;
}

} // namespace tolvo
