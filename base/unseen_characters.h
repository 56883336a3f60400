// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>

namespace tolvo {

/// Whether a unit of a text shows nothing of itself: control and format characters, such as zero-width blanks
/// and joiners, soft hyphens, byte order marks and the marks of writing direction, and noncharacters. Blanks,
/// tabs and halves of surrogate pairs are not among them.
///   isUnseen(u'\u200B') is true, isUnseen(u'\t') is false
[[nodiscard]] bool isUnseen(QChar unit);

} // namespace tolvo
