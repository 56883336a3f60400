// SPDX-License-Identifier: MIT
#include "base/text_encoding.h"

#include "base/code_page.h"

#include <QStringDecoder>
#include <algorithm>

namespace tolvo {

namespace {

/// A text may hold one control character in that many units, besides those of white space and Esc.
constexpr qsizetype mostControls = 30;

/// How far bytes without a mark are looked at for UTF-16.
constexpr qsizetype lookedAt = 4096;

std::optional<QString> decoded(QByteArrayView bytes, QStringConverter::Encoding encoding) {
    QStringDecoder decoder(encoding, QStringConverter::Flag::Stateless);
    QString text = decoder(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

QString fromWindows1252(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [](char byte) { return QChar(fromAnsi(static_cast<std::uint8_t>(byte))); });
    return text;
}

/// UTF-16 without a mark.
std::optional<QStringConverter::Encoding> unmarkedUtf16(QByteArrayView bytes) {
    const QByteArrayView front = bytes.first(std::min(bytes.size(), lookedAt));
    qsizetype even = 0;
    qsizetype odd = 0;
    for (qsizetype at = 0; at + 1 < front.size(); at += 2) {
        even += front[at] == '\0' ? 1 : 0;
        odd += front[at + 1] == '\0' ? 1 : 0;
    }
    const auto most = [&front](qsizetype count) { return count * 4 > front.size(); };
    if (bytes.size() % 2 != 0 || most(even) == most(odd))
        return std::nullopt;
    return most(odd) ? QStringConverter::Utf16LE : QStringConverter::Utf16BE;
}

bool isControl(QChar unit) {
    return unit < u' ' && !unit.isSpace() && unit != u'\x1B';
}

bool isText(QStringView text) {
    const auto controls = std::count_if(text.begin(), text.end(), isControl);
    return !text.contains(u'\0') && controls * mostControls <= text.size();
}

std::optional<QString> anyText(QByteArrayView bytes) {
    if (const auto marked = QStringConverter::encodingForData(bytes))
        return decoded(bytes, *marked);
    if (const auto utf16 = unmarkedUtf16(bytes))
        return decoded(bytes, *utf16);
    if (auto utf8 = decoded(bytes, QStringConverter::Utf8))
        return utf8;
    return fromWindows1252(bytes);
}

} // namespace

std::optional<QString> decodedText(QByteArrayView bytes) {
    std::optional<QString> text = anyText(bytes);
    if (text && !isText(*text))
        text.reset();
    return text;
}

} // namespace tolvo
