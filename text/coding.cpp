// SPDX-License-Identifier: MIT
#include "text/coding.h"

#include "base/utf8.h"
#include "platform/line_ends.h"
#include "text/code_parts.h"
#include "text/lines.h"

#include <QByteArray>
#include <optional>

namespace tolvo {

QString htmlEncoded(QStringView text) {
    QString result;
    result.reserve(text.size());
    for (const QChar c : text) {
        switch (c.unicode()) {
        case u'&':
            result += u"&amp;";
            break;
        case u'<':
            result += u"&lt;";
            break;
        case u'>':
            result += u"&gt;";
            break;
        case u'"':
            result += u"&quot;";
            break;
        case u'\'':
            result += u"&#x27;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

QString urlEncoded(QStringView text) {
    constexpr QStringView marks = u"-_.!~*'()\r\n";
    const auto stays = [&](QChar c) {
        return c.unicode() < 0x80 && (c.isLetterOrNumber() || marks.contains(c));
    };
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool pair =
            text.sliced(i).size() > 1 && text[i].isHighSurrogate() && text[i + 1].isLowSurrogate();
        if (stays(text[i]) || (text[i].isSurrogate() && !pair)) {
            result += text[i];
            continue;
        }
        for (const char byte : utf8Of(text.sliced(i, pair ? 2 : 1))) {
            result += u'%';
            addHex(result, static_cast<uchar>(byte), 2, u"0123456789ABCDEF");
        }
        i += pair ? 1 : 0;
    }
    return result;
}

DecodedText urlDecoded(QStringView text) {
    const auto byteAt = [&](qsizetype at) -> std::optional<uint> {
        return at + 2 < text.size() && text[at] == u'%' ? hexNumber(text.sliced(at + 1, 2)) : std::nullopt;
    };
    DecodedText decoded;
    for (qsizetype i = 0; i < text.size();) {
        const auto first = byteAt(i);
        if (!first) {
            decoded.text += text[i++];
            continue;
        }
        QByteArray bytes;
        const qsizetype length = sequenceLength(static_cast<uchar>(*first));
        for (qsizetype k = 0; k < length; ++k) {
            if (const auto byte = byteAt(i + 3 * k))
                bytes += static_cast<char>(*byte);
        }
        if (const auto character = bytes.size() == length && length > 0 ? fromUtf8(bytes) : std::nullopt) {
            decoded.text += *character;
            i += 3 * length;
        } else {
            noteBadCode(decoded, i);
            decoded.text += text.sliced(i, 3);
            i += 3;
        }
    }
    return decoded;
}

QString base64Encoded(QStringView text) {
    return QString::fromLatin1(utf8Of(crLfToLf(text)).toBase64());
}

DecodedText base64Decoded(QStringView text) {
    QByteArray letters;
    qsizetype padding = 0;
    const auto refused = [&](qsizetype at) { return DecodedText{text.toString(), 1, at}; };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit == u' ' || unit == u'\t' || unit == u'\r' || unit == u'\n')
            continue;
        if (unit == u'=') {
            ++padding;
            continue;
        }
        const bool known =
            unit < 0x80 && (QChar(unit).isLetterOrNumber() || QStringView(u"+/-_").contains(unit));
        if (!known || padding > 0)
            return refused(i);
        letters += unit == u'-' ? '+' : unit == u'_' ? '/' : static_cast<char>(unit);
    }
    constexpr int group = 4;
    if (letters.size() % group == 1 || padding > 2)
        return refused(text.size());
    const auto decoded = QByteArray::fromBase64Encoding(letters, QByteArray::AbortOnBase64DecodingErrors);
    const auto plain = decoded ? fromUtf8(*decoded) : std::nullopt;
    return plain ? DecodedText{lfToCrLf(crLfToLf(*plain))} : refused(0);
}

QString jsonEscaped(QStringView text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (text.sliced(i).startsWith(lineEnd)) {
            result += u"\\n";
            ++i;
        } else if (const qsizetype at = QStringView(u"\"\\\b\f\n\r\t").indexOf(unit); at >= 0) {
            result += u'\\';
            result += u"\"\\bfnrt"[at];
        } else if (unit < u' ') {
            result += u"\\u";
            addHex(result, unit, 4);
        } else {
            result += text[i];
        }
    }
    return result;
}

QString unicodeEscaped(QStringView text) {
    QString result;
    for (const QChar c : text) {
        if (c.unicode() < 0x80) {
            result += c;
            continue;
        }
        result += u"\\u";
        addHex(result, c.unicode(), 4);
    }
    return result;
}

namespace {

/// An escape after its backslash: what it stands for, and its length; nothing if it is not an escape.
struct Escape {
    QString stands;
    qsizetype length;
};

std::optional<Escape> codeEscape(QStringView text, qsizetype prefix, qsizetype digits) {
    const auto code =
        digits > 0 && text.size() >= prefix + digits ? hexNumber(text.sliced(prefix, digits)) : std::nullopt;
    if (!code || *code > QChar::LastValidCodePoint)
        return {};
    return Escape{characterOf(*code), prefix + digits};
}

std::optional<Escape> escapeAt(QStringView text) {
    if (text.isEmpty())
        return {};
    const char16_t kind = text.front().unicode();
    if (const qsizetype at = QStringView(u"\"\\/'bfnrt").indexOf(kind); at >= 0) {
        const QString stands = kind == u'n' ? lineEnd.toString() : QString(QChar(u"\"\\/'\b\f\n\r\t"[at]));
        return Escape{stands, 1};
    }
    if (kind == u'x')
        return codeEscape(text, 1, 2);
    if (kind == u'U')
        return codeEscape(text, 1, 8);
    if (kind != u'u')
        return {};
    if (!text.sliced(1).startsWith(u'{'))
        return codeEscape(text, 1, 4);
    const qsizetype close = text.left(9).indexOf(u'}');
    auto escape = codeEscape(text, 2, close - 2);
    if (escape)
        ++escape->length; // the closing bracket
    return escape;
}

} // namespace

DecodedText unescapedString(QStringView text) {
    DecodedText decoded;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\\') {
            decoded.text += text[i];
        } else if (const auto escape = escapeAt(text.sliced(i + 1))) {
            decoded.text += escape->stands;
            i += escape->length;
        } else {
            noteBadCode(decoded, i);
            decoded.text += text[i];
        }
    }
    return decoded;
}

} // namespace tolvo
