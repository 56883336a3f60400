// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

class TextBox;

/// A text with its selection, as undo keeps it. Counts UTF-16 units, the start from 0.
struct TextState {
    QString text;
    int selStart = 0;
    int selLength = 0;
};

/// What the box shows.
[[nodiscard]] TextState textState(const TextBox &box);

/// Writes text, start and length of the selection, in this order. Where most of the text stays, the view
/// stays as well.
void restore(TextBox &box, const TextState &state);

} // namespace tolvo
