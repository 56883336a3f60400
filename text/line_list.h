// SPDX-License-Identifier: MIT
// A text as a list of lines, for the tools that move lines, take some out or join them.
#pragma once

#include "text/lines.h"

#include <QList>

namespace tolvo {

/// The lines of a text. A line end at the end of the text begins no line of its own.
struct LineList {
    QList<QStringView> lines;
    bool endsInLineEnd = false;

    explicit LineList(QStringView text) : LineList(splitLines(text)) {}

    /// Lines, or rows, that a text was split into.
    explicit LineList(QList<QStringView> split) : lines(std::move(split)) {
        endsInLineEnd = lines.size() > 1 && lines.back().isEmpty();
        if (endsInLineEnd)
            lines.removeLast();
    }

    /// Lines as a text that ends as this one does. No lines make an empty text.
    template <class Lines>
    [[nodiscard]] QString joined(const Lines &others, QStringView separator = lineEnd) const {
        QString result;
        for (qsizetype i = 0; i < std::ssize(others); ++i) {
            if (i > 0)
                result += separator;
            result += others[i];
        }
        if (endsInLineEnd && !others.empty())
            result += lineEnd;
        return result;
    }
};

} // namespace tolvo
