// SPDX-License-Identifier: MIT
#include "base/escaped_text.h"

#include "base/failure.h"
#include "base/numbers.h"

#include <algorithm>

namespace tolvo {

EscapedText escapedControls(QStringView text) {
    EscapedText escaped;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t unit = text[i].unicode();
        if (unit >= 32) {
            escaped.text += QChar(unit);
            continue;
        }
        escaped.specialChars = true;
        if (unit == u'\t') {
            escaped.text += QLatin1StringView("\\t");
        } else if (text.sliced(i).startsWith(u"\r\n")) {
            escaped.text += QLatin1StringView("\\n");
            ++i;
        } else {
            escaped.text += QStringLiteral("\\x%1").arg(QString::number(unit, 16).toUpper(), 2, u'0');
        }
    }
    return escaped;
}

QString unescaped(QString text, bool crlf) {
    // Keeps an escaped backslash from the other escapes. Nobody can type its first character.
    const QString guard = QStringLiteral("%1__").arg(QChar(u'\0'));
    text.replace(QStringLiteral("\\\\"), guard);
    text.replace(QStringLiteral("\\n"), crlf ? QStringLiteral("\r\n") : QStringLiteral("\n"));
    text.replace(QStringLiteral("\\t"), QStringLiteral("\t"));
    text = withHexEscapes(withHexEscapes(text, u"\\x", 2), u"\\u", 4);
    return text.replace(guard, QStringLiteral("\\"));
}

qsizetype badEscapeAt(QStringView text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != u'\\')
            continue;
        const QChar kind = text[i + 1].toLower();
        const QStringView digits = text.sliced(i + 2).left(kind == u'x' ? 2 : 4);
        if ((kind == u'x' || kind == u'u') && !IsHex(digits))
            return i;
        ++i;
    }
    return -1;
}

/// The search goes on after each character that is put in: what it begins is not looked at again.
QString withHexEscapes(QStringView text, QStringView prefix, qsizetype digits) {
    QString result;
    qsizetype done = 0;
    for (;;) {
        const qsizetype at = text.indexOf(prefix, done, Qt::CaseInsensitive);
        if (at < 0)
            break;
        const QStringView rest = text.sliced(at + prefix.size());
        QString hex = rest.first(std::min(digits, rest.size())).toString();
        if (!IsHex(hex))
            throw Failure(failureNumber::badHexadecimalEscape,
                          QStringLiteral("Invalid hex in %1%2").arg(prefix, hex));
        result += text.sliced(done, at - done);
        done = at + prefix.size() + hex.size();
        result += QChar(static_cast<char16_t>(HexToNumber(hex)));
    }
    result += text.sliced(done);
    return result;
}

} // namespace tolvo
