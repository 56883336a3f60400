// SPDX-License-Identifier: MIT
#include "platform/box_text.h"

#include "platform/line_ends.h"

#include <QStringList>

namespace tolvo {

namespace {

constexpr qsizetype mostUnits = 1600;
constexpr qsizetype mostLines = 24;
constexpr qsizetype longestRun = 60; ///< units that need no place to break
constexpr QChar lineEnd = u'\n';

/// Keeps `front` items and `back` items of a list or a string. The end of a text is worth keeping: an error
/// report gives its number there.
template <class List>
List ends(const List &list, qsizetype front, qsizetype back, const List &between) {
    return list.first(front) + between + list.last(back);
}

/// A string without its middle; no surrogate pair is cut.
QString withoutMiddle(const QString &text) {
    qsizetype front = mostUnits * 3 / 4;
    qsizetype back = mostUnits / 4;
    if (text.at(front - 1).isHighSurrogate())
        --front;
    if (text.at(text.size() - back).isLowSurrogate())
        --back;
    return ends(text, front, back, lineEnd + QStringLiteral("[...]") + lineEnd);
}

/// Places where a window may break a run without blanks.
QString breakable(const QString &text) {
    QString result;
    qsizetype run = 0;
    for (const QChar unit : text) {
        if (unit.isSpace())
            run = 0;
        else if (++run > longestRun && !unit.isLowSurrogate()) {
            result += QChar(0x200B); // zero width space
            run = 1;
        }
        result += unit;
    }
    return result;
}

} // namespace

QString boxText(const QString &text) {
    QString shown = crLfToLf(text);
    for (const QChar other : {QChar(u'\r'), QChar(QChar::LineSeparator), QChar(QChar::ParagraphSeparator)})
        shown.replace(other, lineEnd);
    if (shown.size() > mostUnits)
        shown = withoutMiddle(shown);
    const QStringList lines = shown.split(lineEnd);
    if (lines.size() > mostLines)
        shown = ends(lines, mostLines * 3 / 4, mostLines / 4, {QStringLiteral("[...]")}).join(lineEnd);
    return breakable(shown);
}

} // namespace tolvo
