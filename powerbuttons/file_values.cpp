// SPDX-License-Identifier: MIT
#include "powerbuttons/file_values.h"

#include <algorithm>

namespace tolvo {

namespace {

constexpr char16_t quote = u'"';

bool isLoneSurrogate(QStringView text, qsizetype at) {
    if (text[at].isHighSurrogate())
        return at + 1 == text.size() || !text[at + 1].isLowSurrogate();
    return text[at].isLowSurrogate() && (at == 0 || !text[at - 1].isHighSurrogate());
}

bool fitsIntoLine(QStringView text, qsizetype at) {
    const QChar c = text[at];
    const QChar::Category category = c.category();
    return category != QChar::Other_Control && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph && c != QChar::ByteOrderMark && !isLoneSurrogate(text, at);
}

bool isPlain(const QString &text) {
    if (text.isEmpty())
        return true;
    if (text.front() == quote || text.front().isSpace() || text.back().isSpace())
        return false;
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (!fitsIntoLine(text, at))
            return false;
    }
    return true;
}

QString escaped(const QString &text, qsizetype at) {
    switch (text[at].unicode()) {
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    case u'\\':
    case quote:
        return u'\\' + text.mid(at, 1);
    default:
        break;
    }
    return fitsIntoLine(text, at) ? text.mid(at, 1)
                                  : QStringLiteral("\\u{%1}").arg(uint(text[at].unicode()), 0, 16);
}

/// Reads the rest of an escape, and leaves `at` at its last character.
std::optional<QChar> readEscape(QStringView text, qsizetype &at) {
    if (++at >= text.size())
        return {};
    switch (text[at].unicode()) {
    case u'n':
        return u'\n';
    case u'r':
        return u'\r';
    case u't':
        return u'\t';
    case u'\\':
    case quote:
        return text[at];
    case u'u':
        break;
    default:
        return {};
    }
    const qsizetype end = text.indexOf(u'}', at);
    if (end < at + 3 || text[at + 1] != u'{')
        return {};
    const QStringView digits = text.sliced(at + 2, end - at - 2);
    const bool isHex = std::ranges::all_of(digits, [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    });
    bool isNumber = false;
    const ushort code = digits.toUShort(&isNumber, 16);
    at = end;
    return isHex && isNumber ? std::optional(QChar(code)) : std::nullopt;
}

} // namespace

QString fileValue(const QString &text) {
    if (isPlain(text))
        return text;
    QString value(quote);
    for (qsizetype at = 0; at < text.size(); ++at)
        value += escaped(text, at);
    return value + quote;
}

std::optional<QString> textOfFileValue(const QString &value) {
    const QString given = value.trimmed();
    if (!given.startsWith(quote))
        return given;
    QString text;
    for (qsizetype at = 1; at < given.size(); ++at) {
        QChar c = given[at];
        if (c == quote)
            return at + 1 == given.size() ? std::optional(text) : std::nullopt;
        if (c == u'\\') {
            const std::optional<QChar> meant = readEscape(given, at);
            if (!meant)
                return {};
            c = *meant;
        }
        text += c;
    }
    return {}; // the closing quote is missing
}

} // namespace tolvo
