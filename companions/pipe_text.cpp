// SPDX-License-Identifier: MIT
#include "companions/pipe_text.h"

#include <QStringDecoder>

namespace tolvo {

namespace {

using Byte = unsigned char;

/// Bytes of the sequence at `bytes`, of which `left` are there; 0 if it is none.
int sequenceLength(const Byte *bytes, qsizetype left) {
    const Byte first = bytes[0];
    if (first < 0x80)
        return 1;
    const int length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || left < length)
        return 0;
    for (int i = 1; i < length; ++i) {
        if ((bytes[i] & 0xC0) != 0x80)
            return 0;
    }
    const Byte second = bytes[1]; // overlong forms, surrogates, and what lies beyond the last character
    if ((first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
        (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F))
        return 0;
    return length;
}

} // namespace

std::optional<qsizetype> firstBadByte(const QByteArray &bytes) {
    const auto *data = reinterpret_cast<const Byte *>(bytes.constData());
    for (qsizetype i = 0; i < bytes.size();) {
        const int length = sequenceLength(data + i, bytes.size() - i);
        if (length == 0)
            return i;
        i += length;
    }
    return std::nullopt;
}

QString fromUtf8(const QByteArray &bytes) {
    return QStringDecoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom)(bytes);
}

QString jsonString(const QString &text) {
    QString json;
    json.reserve(text.size() + 2);
    json += u'"';
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool pair = c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (pair)
            json.append(c).append(text.at(++i));
        else if (c == u'"' || c == u'\\')
            json.append(u'\\').append(c);
        else if (c == u'\n')
            json += QLatin1StringView("\\n");
        else if (c == u'\r')
            json += QLatin1StringView("\\r");
        else if (c == u'\t')
            json += QLatin1StringView("\\t");
        else if (c.unicode() < 0x20 || c.isSurrogate())
            json += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            json += c;
    }
    json += u'"';
    return json;
}

} // namespace tolvo
