// SPDX-License-Identifier: MIT
#include "spelling/locales.h"

#include "base/paths.h"

#include <QFile>
#include <QStringList>

namespace tolvo {

namespace {

/// The longest line that is read, in bytes; the table's own lines are far shorter.
constexpr qint64 longestLine = 4096;

} // namespace

QString Locales::pathIn(const QString &dataFolder) {
    return sAppPath(dataFolder) + QStringLiteral("Locales.txt");
}

Locales::Locales(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return;
    for (int number = 0; !file.atEnd(); ++number) {
        const QByteArray line = file.readLine(longestLine);
        if (number >= 2)
            readLine(QString::fromUtf8(line));
    }
}

void Locales::readLine(const QString &line) {
    QStringList fields = line.split(u'\t');
    if (fields.size() < 4)
        return;
    fields[3] = fields[3].trimmed();
    bool isNumber = false;
    const int number = fields[3].toInt(&isNumber);
    if (!isNumber || m_byNumber.contains(fields[3]))
        return;
    m_byNumber[fields[3]].init(fields[0], number, fields[2]);
    const QString locale = fields[0].toLower();
    if (!m_numbers.contains(locale))
        m_numbers.insert(locale, number);
}

QString Locales::localeOf(int LangID) const {
    return m_byNumber.value(QString::number(LangID)).LCID;
}

int Locales::idOf(const QString &locale, int otherwise) const {
    return m_numbers.value(locale.toLower(), otherwise);
}

} // namespace tolvo
