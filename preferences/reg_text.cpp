// SPDX-License-Identifier: MIT
#include "preferences/reg_text.h"

#include "base/code_page.h"
#include "base/failure.h"
#include "base/numbers.h"

#include <QStringDecoder>
#include <QtEndian>

namespace tolvo {

void failInLine(int line, const QString &what) {
    throw Failure(failureNumber::invalidArgument,
                  line > 0 ? QStringLiteral("Line %1: %2").arg(groupedNumber(line), what) : what);
}

namespace {

template <class Swap>
QString decodeUtf16(QByteArrayView bytes, Swap swap) {
    QString text(bytes.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(swap(bytes.data() + 2 * i));
    if (bytes.size() % 2 != 0) {
        failInLine(static_cast<int>(text.count(u'\n')) + 1,
                   QStringLiteral("the file is cut off in the middle of a character"));
    }
    return text;
}

QString decodeAnsi(QByteArrayView bytes) {
    QString text(bytes.size(), Qt::Uninitialized);
    for (qsizetype i = 0; i < text.size(); ++i)
        text[i] = QChar(fromAnsi(static_cast<std::uint8_t>(bytes.at(i))));
    return text;
}

} // namespace

QString decodeRegFile(const QByteArray &file) {
    if (file.isEmpty())
        failInLine(0, QStringLiteral("The file is empty."));
    const QByteArrayView bytes(file);
    if (file.startsWith("\xFF\xFE"))
        return decodeUtf16(bytes.sliced(2),
                           [](const char *unit) { return qFromLittleEndian<char16_t>(unit); });
    if (file.startsWith("\xFE\xFF"))
        return decodeUtf16(bytes.sliced(2), [](const char *unit) { return qFromBigEndian<char16_t>(unit); });
    if (file.size() >= 2 && (file.at(0) == '\0') != (file.at(1) == '\0'))
        failInLine(1, QStringLiteral("the file is in UTF-16 without a byte order mark"));
    QStringDecoder decode(QStringDecoder::Utf8);
    QString text = decode(bytes);
    if (!decode.hasError())
        return text;
    if (file.startsWith("REGEDIT4"))
        return decodeAnsi(bytes);
    failInLine(static_cast<int>(text.first(qMax(text.indexOf(QChar::ReplacementCharacter), 0)).count(u'\n')) +
                   1,
               QStringLiteral("the file is neither UTF-16 nor UTF-8"));
}

QStringView RegLines::next() {
    ++m_number;
    qsizetype end = 0;
    while (end < m_rest.size() && m_rest.at(end) != u'\r' && m_rest.at(end) != u'\n') {
        if (m_rest.at(end).isNull())
            failInLine(m_number, QStringLiteral("a NUL character"));
        ++end;
    }
    QStringView line = m_rest.first(end);
    const bool pair = m_rest.sliced(end).startsWith(u"\r\n");
    m_rest = m_rest.sliced(qMin(end + (pair ? 2 : 1), m_rest.size()));
    const auto isBlank = [](QChar unit) { return unit == u' ' || unit == u'\t'; };
    while (!line.isEmpty() && isBlank(line.front()))
        line = line.sliced(1);
    while (!line.isEmpty() && isBlank(line.back()))
        line.chop(1);
    return line;
}

} // namespace tolvo
