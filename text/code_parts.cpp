// SPDX-License-Identifier: MIT
#include "text/code_parts.h"

#include <QStringDecoder>
#include <algorithm>

namespace tolvo {

void noteBadCode(DecodedText &decoded, qsizetype at) {
    if (decoded.bad++ == 0)
        decoded.badAt = at;
}

std::optional<QString> fromUtf8(const QByteArray &bytes) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::Stateless);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return {};
    return text;
}

std::optional<uint> hexNumber(QStringView digits) {
    constexpr int hexadecimal = 16;
    const auto isHex = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
    };
    if (digits.isEmpty() || !std::all_of(digits.begin(), digits.end(), isHex))
        return {};
    return digits.toUInt(nullptr, hexadecimal);
}

void addHex(QString &result, uint number, int width, QStringView digits) {
    constexpr int bitsOfADigit = 4;
    for (int place = width - 1; place >= 0; --place)
        result += digits[(number >> (place * bitsOfADigit)) & 0xFU];
}

qsizetype sequenceLength(uchar first) {
    if (first < 0x80)
        return 1;
    if (first < 0xC2 || first > 0xF4)
        return 0;
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

QString characterOf(char32_t code) {
    return code > 0xFFFF ? QString::fromUcs4(&code, 1) : QString(QChar(static_cast<char16_t>(code)));
}

} // namespace tolvo
