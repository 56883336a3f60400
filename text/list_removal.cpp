// SPDX-License-Identifier: MIT
// Removes list marks, line numbers and bullets.
#include "base/character_sets.h"
#include "base/list_marks.h"
#include "base/strings.h"
#include "text/cTextMethods.h"
#include "text/lines.h"
#include "text/numbering.h"

namespace tolvo {

namespace {

constexpr int sureTenths = 5;   ///< with this confidence a Roman mark needs no neighbour
constexpr int inListTenths = 3; ///< with this confidence it continues a list

QStringView withoutFront(QStringView text, QStringView set) {
    while (!text.isEmpty() && contains(set, text.front().unicode()))
        text = text.sliced(1);
    return text;
}

QStringList linesOf(QStringView text) {
    QStringList lines;
    forEachLine(text, [&lines](QStringView line, bool) { lines.append(line.toString()); });
    return lines;
}

/// The line without the first `length` units of its body and the white space after them; its indentation
/// stays.
QString withoutMark(const QString &line, QStringView body, qsizetype length) {
    const QStringView indentation = QStringView(line).first(line.size() - body.size());
    return indentation.toString() + leftTrimWhiteSpace(body.sliced(length)).toString();
}

bool isBlankLine(const QString &line) {
    return leftTrimWhiteSpace(line).isEmpty();
}

/// The index of the next line in a direction (1 or -1), skipping one blank line unless it is the last one; -1
/// if there is none.
qsizetype neighbour(const QStringList &lines, qsizetype index, int direction) {
    const auto exists = [&lines](qsizetype at) { return at >= 0 && at < lines.size(); };
    qsizetype at = index + direction;
    if (!exists(at))
        return -1;
    if (isBlankLine(lines.at(at)) && exists(at + direction))
        at += direction;
    return at;
}

std::optional<ListMark> romanMarkOf(const QString &line) {
    return ParseRomanMark(leftTrimWhiteSpace(line));
}

/// Removes the marks of a run of Roman items that begins at `index` with a mark of `length` units. Within a
/// run a doubtful mark counts too. Returns the index of the last line of the run.
qsizetype RemoveRomanRun(QStringList &lines, qsizetype index, qsizetype length) {
    for (;;) {
        QString &line = lines[index];
        line = withoutMark(line, leftTrimWhiteSpace(line), length);
        const qsizetype next = neighbour(lines, index, 1);
        const auto mark = next < 0 ? std::nullopt : romanMarkOf(lines.at(next));
        if (!mark || mark->tenths < inListTenths)
            return index;
        index = next;
        length = mark->length;
    }
}

/// Calls `mend(line, result)`, which appends the new line, for each line that is not made of blanks alone.
template <class Mend>
QString mendLines(QStringView text, Mend mend) {
    return changeLines(text, [&mend](QStringView line, QString &result) {
        if (trimBlanks(line).isEmpty())
            result += line;
        else
            mend(line, result);
    });
}

} // namespace

std::optional<qsizetype> RomanNeighbourAgrees(const QStringList &lines, qsizetype index) {
    const auto mark = romanMarkOf(lines.at(index));
    if (!mark)
        return std::nullopt;
    const auto alike = [&](int direction) {
        const qsizetype at = neighbour(lines, index, direction);
        return at >= 0 && romanMarkOf(lines.at(at)).has_value();
    };
    if (mark->tenths >= sureTenths || alike(-1) || alike(1))
        return mark->length;
    return std::nullopt;
}

QString cTextMethods::removeNumbers(QStringView text) const {
    QStringList lines = linesOf(text);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QStringView body = leftTrimWhiteSpace(lines.at(i));
        if (body.isEmpty())
            continue;
        if (ParseDecimalMark(body)) {
            const qsizetype length = body.size() - withoutFront(body, u"(01234567890.)").size();
            lines[i] = withoutMark(lines.at(i), body, length);
        } else if (const auto length = RomanNeighbourAgrees(lines, i)) {
            i = RemoveRomanRun(lines, i, *length);
        }
    }
    return lines.join(lineEnd);
}

QString cTextMethods::RemoveLineNumbers(QStringView text) const {
    return mendLines(text, [](QStringView line, QString &result) {
        result += leftTrimBlanks(withoutFront(leftTrimBlanks(line), u"0123456789"));
    });
}

QString cTextMethods::removeBullets(QStringView text) const {
    return mendLines(text, [](QStringView line, QString &result) {
        const QStringView body = leftTrimWhiteSpace(line);
        result += line.first(line.size() - body.size());
        result += leftTrimWhiteSpace(withoutFront(body, bulletMarks));
    });
}

} // namespace tolvo
