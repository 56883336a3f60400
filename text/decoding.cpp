// SPDX-License-Identifier: MIT
// Plain and curly characters, percent encoding, character references, quoting marks of mail.
#include "text/cTextMethods.h"

#include "base/character_sets.h"
#include "base/code_page.h"
#include "base/numbers.h"
#include "text/entities.h"
#include "text/lines.h"

namespace tolvo {

namespace {

/// Replaces "---" by a long dash, "--" by a short one and "..." by an ellipsis, from left to right.
QString withTypographicDashes(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size();) {
        if (text[i] != u'-' && text[i] != u'.') {
            result += text[i++];
            continue;
        }
        const QStringView rest = text.sliced(i);
        if (rest.startsWith(u"---")) {
            result += QChar(0x2014);
            i += 3;
        } else if (rest.startsWith(u"--")) {
            result += QChar(0x2013);
            i += 2;
        } else if (rest.startsWith(u"...")) {
            result += QChar(0x2026);
            i += 3;
        } else {
            result += text[i++];
        }
    }
    return result;
}

} // namespace

QString cTextMethods::PlainChars(QStringView text) const {
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() < 0x80)
            result += c;
        else if (contains(u"\u201A\u2018\u2019\u00B4", c.unicode()))
            result += u'\'';
        else if (contains(u"\u201C\u201D\u201E", c.unicode()))
            result += u'"';
        else if (contains(u"\u2013\u2014", c.unicode()))
            result += u'-';
        else if (c == QChar(0x2026))
            result += u"...";
        else
            result += c;
    }
    return result;
}

QString cTextMethods::CurlyQuotes(QStringView text) const {
    bool inDouble = false;
    bool inSingle = false;
    QString result = text.toString();
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\'') {
            const bool isQuoteMark = IsQuoteMark(text, i + 2);
            const bool opens = isQuoteMark && !inSingle;
            if (isQuoteMark)
                inSingle = opens;
            result[i] = QChar(opens ? 0x2018 : 0x2019);
        } else if (text[i] == u'"') {
            result[i] = QChar(inDouble ? 0x201D : 0x201C);
            inDouble = !inDouble;
        }
    }
    const QString messages = quotesLeftOpen(inDouble, inSingle);
    if (!messages.isEmpty())
        m_host.warn(messages, QStringLiteral("Curly Quotes"));
    return withTypographicDashes(result);
}

QString cTextMethods::URLdecode(QStringView text) const {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool escaped = text[i] == u'%' && i + 2 < text.size() && IsHex(text.sliced(i + 1, 2));
        if (!escaped) {
            result += text[i];
            continue;
        }
        QString digits = text.sliced(i + 1, 2).toString();
        result += QChar(fromAnsi(static_cast<std::uint8_t>(HexToNumber(digits))));
        i += 2;
    }
    return result;
}

QString cTextMethods::HTMLdecode(QStringView text) const {
    return decodeNamedEntities(decodeNumericEntities(text));
}

QString cTextMethods::Stripmail(QStringView text) const {
    return changeLines(text, [](QStringView line, QString &result) {
        while (line.startsWith(u'>') || line.startsWith(u'|'))
            line = leftTrimBlanks(line.sliced(1));
        result += line;
    });
}

} // namespace tolvo
