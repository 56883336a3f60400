// SPDX-License-Identifier: MIT
#include "shell/moving_lines.h"

#include "base/strings.h"
#include "platform/text_box.h"
#include "shell/text_state.h"
#include "shell/tool_table.h"
#include "text/cTextMethods.h"

namespace tolvo {

namespace {

/// Lines by their numbers, from 0.
struct LineRange {
    qsizetype first = 0;
    qsizetype last = 0;
};

/// The lines that the selection touches.
LineRange selectedLines(const cTextMethods &engine, const TextState &state, const QList<QStringView> &lines) {
    int row = 1;
    int column = 1;
    engine.getColRow(state.text, state.selStart, row, column);
    LineRange range{row - 1, row - 1};
    const qsizetype length = range.first < lines.size() ? lines.at(range.first).size() : 0;
    if (state.selLength > 0 && state.selLength + column - 1 > length) {
        engine.getColRow(state.text, state.selStart + state.selLength, row, column);
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

void moveLinesUp(const ToolContext &context) {
    const TextState state = textState(context.box);
    QList<QStringView> lines = splitLines(state.text);
    const LineRange range = selectedLines(context.engine, state, lines);
    if (range.first == 0) {
        context.host.setStatus(QStringLiteral("Already at the top"));
        return;
    }
    const auto step = static_cast<int>(lines.at(range.first - 1).size()) + 2;
    lines.move(range.first - 1, range.last);
    restore(context.box, {joined(lines, state.text.size()), state.selStart - step, state.selLength});
}

void moveLinesDown(const ToolContext &context) {
    const TextState state = textState(context.box);
    QList<QStringView> lines = splitLines(state.text);
    const LineRange range = selectedLines(context.engine, state, lines);
    if (range.last + 1 >= lines.size()) {
        context.host.setStatus(QStringLiteral("Already at the bottom"));
        return;
    }
    const auto step = static_cast<int>(lines.at(range.last + 1).size()) + 2;
    lines.move(range.last + 1, range.first);
    restore(context.box, {joined(lines, state.text.size()), state.selStart + step, state.selLength});
}

} // namespace tolvo
