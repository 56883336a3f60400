// SPDX-License-Identifier: MIT
#include "base/strings.h"

#include "base/character_sets.h"
#include "base/failure.h"

#include <limits>

namespace tolvo {

namespace {

template <class Belongs>
QStringView leftTrim(QStringView text, Belongs belongs) {
    while (!text.isEmpty() && belongs(text.front().unicode()))
        text = text.sliced(1);
    return text;
}

template <class Belongs>
QStringView rightTrim(QStringView text, Belongs belongs) {
    while (!text.isEmpty() && belongs(text.back().unicode()))
        text.chop(1);
    return text;
}

constexpr bool isBlank(char16_t unit) {
    return unit == u' ';
}

} // namespace

QStringView leftTrimBlanks(QStringView text) {
    return leftTrim(text, isBlank);
}

QStringView rightTrimBlanks(QStringView text) {
    return rightTrim(text, isBlank);
}

QStringView trimBlanks(QStringView text) {
    return rightTrimBlanks(leftTrimBlanks(text));
}

QStringView leftTrimWhiteSpace(QStringView text) {
    return leftTrim(text, isWhiteSpace);
}

QStringView rightTrimWhiteSpace(QStringView text) {
    return rightTrim(text, isWhiteSpace);
}

QStringView trimWhiteSpace(QStringView text) {
    return rightTrimWhiteSpace(leftTrimWhiteSpace(text));
}

QString parse(QString &s, QChar separator) {
    const qsizetype index = s.indexOf(separator);
    if (index + 1 > std::numeric_limits<qint16>::max())
        failOverflow(QStringLiteral("a separator stands after position 32767"));
    QString field = trimBlanks(index < 0 ? QStringView(s) : QStringView(s).first(index)).toString();
    s = index < 0 ? QString() : s.sliced(index + 1);
    return field;
}

QStringView MidOrEmpty(QStringView text, qsizetype start, qsizetype length) {
    if (start < 1 || start > text.size() || length < 1)
        return {};
    return text.sliced(start - 1, qMin(length, text.size() - start + 1));
}

QString CToBStr(QString &buffer) {
    const qsizetype end = buffer.indexOf(QChar(u'\0'));
    if (end >= 0)
        buffer.truncate(end);
    return buffer;
}

int IndexInList(const QString &text, const QStringList &list) {
    return static_cast<int>(list.indexOf(text));
}

qsizetype lastIndexOf(QStringView text, QStringView needle, Qt::CaseSensitivity compare) {
    if (needle.isEmpty() || needle.size() > text.size())
        return 0;
    return text.lastIndexOf(needle, -1, compare) + 1;
}

QString FillTemplate(QString text, const QStringList &values) {
    for (qsizetype i = 0; i < values.size(); ++i)
        text.replace(u'%' + QString::number(i), values.at(i));
    return text;
}

QString FillCountedTemplate(const QString &singular, const QString &plural, bool flag,
                            const QStringList &values) {
    QString text = flag ? singular : plural;
    if (values.size() > 1) {
        for (qsizetype i = 0; i < values.size(); ++i)
            text.replace(u'%' + QString::number(i + 1), values.at(i));
    }
    return text;
}

QStringView StripTrailingEOL(QStringView text) {
    while (!text.isEmpty() && (text.back() == u'\r' || text.back() == u'\n'))
        text.chop(1);
    return text;
}

QList<QStringView> splitLines(QStringView text) {
    QList<QStringView> lines;
    forEachLine(text, [&lines](QStringView line, bool) { lines.append(line); });
    return lines;
}

} // namespace tolvo
