// SPDX-License-Identifier: MIT
#include "search/CSearch.h"

#include "base/numbers.h"
#include "platform/report_error.h"
#include "search/joined.h"

namespace tolvo {

namespace {

/// Keeps an escaped backslash from the other escapes. Nobody can type its first character.
const QString guard = QStringLiteral("%1__").arg(QChar(u'\0'));

/// The search goes on behind each character that is put in: what it begins is not looked at again.
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
            throw Failure(failureNumber::badHexadecimalEscape, joined({u"Invalid hex in ", prefix, hex}));
        result += text.sliced(done, at - done);
        done = at + prefix.size() + hex.size();
        result += QChar(static_cast<char16_t>(HexToNumber(hex)));
    }
    result += text.sliced(done);
    return result;
}

} // namespace

QString CSearch::translateSpecialChars(QString &text, bool crlf) {
    const bool done =
        reportFailures(m_boxes, QStringLiteral("CSearch"), QStringLiteral("translateSpecialChars"), [&] {
            text.replace(QStringLiteral("\\\\"), guard);
            text.replace(QStringLiteral("\\n"), crlf ? QStringLiteral("\r\n") : QStringLiteral("\n"));
            text.replace(QStringLiteral("\\t"), QStringLiteral("\t"));
            replaceHex(text, u"\\x", 2);
            replaceHex(text, u"\\u", 4);
            text.replace(guard, QStringLiteral("\\"));
        });
    return done ? text : QString();
}

QString CSearch::replaceHex(QString &text, QStringView prefix, int digits) {
    QString result;
    reportFailures(m_boxes, QStringLiteral("CSearch"), QStringLiteral("replaceHex"),
                   [&] { result = withHexEscapes(text, prefix, digits); });
    text = result;
    return text;
}

} // namespace tolvo
