// SPDX-License-Identifier: MIT
#include "text/line_parts.h"

#include "base/escaped_text.h"
#include "text/line_list.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tolvo {

namespace {

QString counted(qint64 number, int width) {
    const QString sign = number < 0 ? QStringLiteral("-") : QString();
    return sign + QString::number(std::abs(number)).rightJustified(width - sign.size(), u'0');
}

void addParts(QStringList &parts, QStringView text, const SeparatorSettings &settings) {
    if (text.isEmpty() && !settings.leaveOutEmpty)
        parts += QString();
    forEachLine(text, [&](QStringView line, bool) {
        const QString part = (settings.trim ? line.trimmed() : line).toString();
        if (!settings.leaveOutEmpty || !part.isEmpty())
            parts += part;
    });
}

QStringList partsOf(QStringView text, QStringView separator, const SeparatorSettings &settings) {
    QStringList parts;
    qsizetype start = 0;
    while (!separator.isEmpty()) {
        const qsizetype end = text.indexOf(separator, start);
        if (end < 0)
            break;
        addParts(parts, text.sliced(start, end - start), settings);
        start = end + separator.size();
    }
    addParts(parts, text.sliced(start), settings);
    return parts;
}

/// A word, or white space, from `start` on.
QStringView pieceAt(QStringView line, qsizetype start) {
    const auto *const begin = line.begin() + start;
    const auto *const end =
        std::find_if(begin, line.end(), [&](QChar c) { return c.isSpace() != begin->isSpace(); });
    return line.sliced(start, end - begin);
}

} // namespace

QString withTextAround(QStringView text, const AroundLinesSettings &settings) {
    const QString counter = AroundLinesSettings::counter.toString();
    qint64 number = settings.start;
    return changeLines(text, [&](QStringView line, QString &result) {
        const bool isLast = line.end() == text.end();
        const bool skipped = settings.skipBlanks ? trimWhiteSpace(line).isEmpty() : line.isEmpty() && isLast;
        if (skipped) {
            result += line;
            return;
        }
        const QString written = counted(number, settings.width);
        result += QString(settings.before).replace(counter, written);
        result += line;
        result += QString(settings.after).replace(counter, written);
        number += settings.step;
    });
}

QString splitOrJoined(QStringView text, const SeparatorSettings &settings) {
    if (text.isEmpty())
        return {};
    const bool readable = badEscapeAt(settings.separator) < 0;
    const QString separator = readable ? unescaped(settings.separator, true) : settings.separator;
    const LineList list(text);
    const QStringView body = list.endsInLineEnd ? text.chopped(lineEnd.size()) : text;
    if (settings.join)
        return list.joined(partsOf(body, {}, settings), separator);
    const QStringView bare = QStringView(separator).trimmed();
    return list.joined(partsOf(body, settings.trim && !bare.isEmpty() ? bare : separator, settings));
}

QString withWordsReversed(QStringView text) {
    return changeLines(text, [](QStringView line, QString &result) {
        const QStringView words = line.trimmed();
        const qsizetype indent = words.isEmpty() ? line.size() : words.begin() - line.begin();
        QList<QStringView> pieces;
        for (qsizetype i = 0; i < words.size(); i += pieces.back().size())
            pieces += pieceAt(words, i);
        result += line.first(indent);
        std::reverse(pieces.begin(), pieces.end());
        for (const QStringView piece : std::as_const(pieces))
            result += piece;
        result += line.sliced(indent + words.size());
    });
}

} // namespace tolvo
