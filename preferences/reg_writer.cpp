// SPDX-License-Identifier: MIT
#include "base/failure.h"
#include "preferences/reg_file.h"

#include <QtEndian>

namespace tolvo {

namespace {

constexpr int lineWidth = 80; ///< where the lines of hexadecimal bytes break

/// Everything that a quoted text carries safely: no line ends, no control characters, whole characters only.
bool fitsQuotes(QStringView text) {
    for (const QChar unit : text) {
        const char16_t code = unit.unicode();
        if (code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029)
            return false;
    }
    return text.isValidUtf16();
}

QString quoted(QString text) {
    text.replace(u'\\', QStringLiteral("\\\\")).replace(u'"', QStringLiteral("\\\""));
    return u'"' + text + u'"';
}

/// The bytes of the text and of a closing NUL, in lines of at most 80 characters. `used` is what stands
/// before them in the first line.
QString hexBytes(const QString &text, qsizetype used) {
    QString result = QStringLiteral("hex(1):");
    qsizetype column = used + result.size();
    const auto add = [&](int byte, bool last) {
        result += QStringLiteral("%1").arg(byte, 2, 16, QLatin1Char('0'));
        if (last)
            return;
        result += u',';
        column += 3;
        if (column + 3 >= lineWidth) {
            result += QStringLiteral("\\\r\n  ");
            column = 2;
        }
    };
    for (const QChar unit : text) {
        add(unit.unicode() & 0xFF, false);
        add(unit.unicode() >> 8, false);
    }
    add(0, false);
    add(0, true);
    return result;
}

QString checkedName(const QString &name) {
    for (const QChar unit : name) {
        if (unit == u'\r' || unit == u'\n' || unit.isNull()) {
            throw Failure(
                failureNumber::invalidArgument,
                QStringLiteral("The name of the setting '%1' holds a line end or a NUL. A file in the "
                               "registry editor's format can't carry it.")
                    .arg(QString(name).replace(unit, u' ')));
        }
    }
    return name;
}

void writeValue(QString &out, const RegValue &value) {
    const QString start =
        (value.entry.name.isEmpty() ? QStringLiteral("@") : quoted(checkedName(value.entry.name))) + u'=';
    out += start;
    if (value.deleted)
        out += u'-';
    else if (fitsQuotes(value.entry.value))
        out += quoted(value.entry.value);
    else
        out += hexBytes(value.entry.value, start.size());
    out += QStringLiteral("\r\n");
}

} // namespace

QByteArray writeRegFile(const QList<RegKey> &keys) {
    QString out = QChar(0xFEFF) + QStringLiteral("Windows Registry Editor Version 5.00\r\n\r\n");
    for (const RegKey &key : keys) {
        out += key.deleted ? QStringLiteral("[-") : QStringLiteral("[");
        out += key.root + u'\\' + checkedName(key.path) + QStringLiteral("]\r\n");
        for (const RegValue &value : key.values)
            writeValue(out, value);
        out += QStringLiteral("\r\n");
    }
    QByteArray bytes(out.size() * 2, Qt::Uninitialized);
    qToLittleEndian<char16_t>(out.utf16(), out.size(), bytes.data());
    return bytes;
}

} // namespace tolvo
