// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <functional>

class QWidget;

namespace tolvo {

/// One part of a window: all in `area` belongs to it.
struct WindowPart {
    QWidget *area;
    std::function<QWidget *()> entrance; ///< what gets the focus; null for a part that takes none
};

/// Gives the focus to the part after (or before) the one that has it, round the window. If it lies in none of
/// them, the first (or the last) gets it.
void walkParts(const QList<WindowPart> &parts, bool forward);

/// The first control inside `area` that the Tab key stops at; null if there is none.
[[nodiscard]] QWidget *firstStop(QWidget *area);

} // namespace tolvo
