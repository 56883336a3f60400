// SPDX-License-Identifier: MIT
#include "pipe/text.h"

#include <QStringDecoder>
#include <algorithm>
#include <cstring>

namespace tolvo {

namespace {

using Byte = unsigned char;

int lengthByFirstByte(Byte first) {
    return first < 0x80 ? 1 : first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
}

/// The length of the sequence at `bytes`, of which `left` bytes are there; 0 for bytes that aren't one.
int sequenceLength(const Byte *bytes, qsizetype left) {
    const Byte first = bytes[0];
    const int length = lengthByFirstByte(first);
    if (length == 1)
        return 1;
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

/// True if the next eight bytes are ASCII, as most are.
bool eightAscii(const Byte *bytes) {
    quint64 word = 0;
    std::memcpy(&word, bytes, sizeof word);
    return (word & Q_UINT64_C(0x8080808080808080)) == 0;
}

} // namespace

std::optional<qsizetype> firstBadByte(QByteArrayView bytes) {
    const auto *data = reinterpret_cast<const Byte *>(bytes.data());
    for (qsizetype i = 0; i < bytes.size();) {
        if (i + 8 <= bytes.size() && eightAscii(data + i)) {
            i += 8;
            continue;
        }
        const int length = sequenceLength(data + i, bytes.size() - i);
        if (length == 0)
            return i;
        i += length;
    }
    return std::nullopt;
}

qsizetype wholeSequences(QByteArrayView bytes) {
    for (qsizetype back = 1; back <= std::min<qsizetype>(3, bytes.size()); ++back) {
        const auto byte = static_cast<Byte>(bytes[bytes.size() - back]);
        if ((byte & 0xC0) != 0x80)
            return byte >= 0xC2 && lengthByFirstByte(byte) > back ? bytes.size() - back : bytes.size();
    }
    return bytes.size();
}

QString fromUtf8(QByteArrayView bytes) {
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
            json += QStringLiteral("\\u%1").arg(uint(c.unicode()), 4, 16, QLatin1Char('0'));
        else
            json += c;
    }
    json += u'"';
    return json;
}

} // namespace tolvo
