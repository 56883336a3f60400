// SPDX-License-Identifier: MIT
// Moving the line of the caret, or all lines of the selection, by one line.
#include "base/strings.h"
#include "shell/frmMain.h"

namespace tolvo {

namespace {

struct LineRange {
    qsizetype first = 0;
    qsizetype last = 0;
};

/// The lines, from 0, that the selection touches.
LineRange selectedLines(const cTextMethods &engine, const QString &text, const QList<QStringView> &lines,
                        int selStart, int selLength) {
    int row = 1;
    int column = 1;
    engine.getColRow(text, selStart, row, column);
    LineRange range{row - 1, row - 1};
    const qsizetype length = range.first < lines.size() ? lines.at(range.first).size() : 0;
    if (selLength > 0 && selLength + column - 1 > length) {
        engine.getColRow(text, selStart + selLength, row, column);
        range.last = row - 1;
    }
    return range;
}

QString joined(const QList<QStringView> &lines, qsizetype size) {
    QString text;
    text.reserve(size + 2);
    for (const QStringView line : lines)
        text.append(line).append(QLatin1StringView("\r\n"));
    text.chop(2);
    return text;
}

} // namespace

void frmMain::moveLinesUp() {
    const TextState state = textState();
    QList<QStringView> lines = splitLines(state.text);
    const LineRange range = selectedLines(oTextMethods, state.text, lines, state.selStart, state.selLength);
    if (range.first == 0) {
        setStatus(QStringLiteral("Already at the top"));
        return;
    }
    const auto step = static_cast<int>(lines.at(range.first - 1).size()) + 2;
    lines.move(range.first - 1, range.last);
    restore({joined(lines, state.text.size()), state.selStart - step, state.selLength});
}

void frmMain::moveLinesDown() {
    const TextState state = textState();
    QList<QStringView> lines = splitLines(state.text);
    const LineRange range = selectedLines(oTextMethods, state.text, lines, state.selStart, state.selLength);
    if (range.last + 1 >= lines.size()) {
        setStatus(QStringLiteral("Already at the bottom"));
        return;
    }
    const auto step = static_cast<int>(lines.at(range.last + 1).size()) + 2;
    lines.move(range.last + 1, range.first);
    restore({joined(lines, state.text.size()), state.selStart + step, state.selLength});
}

} // namespace tolvo
