// SPDX-License-Identifier: MIT
#pragma once

#include <QPainterPath>
#include <QStringView>

namespace tolvo {

/// The path that the letters of a drawing describe, as far as the program's icons use them: M, L, H, V, C, S,
/// A and Z, and the same in lower case. Arcs are parts of circles and of upright ellipses. What can't be read
/// ends the path. Example: "M4 4h7v7H4z" is a square. Source: Scalable Vector Graphics (SVG) 1.1, chapter 8;
/// arcs: its appendix F.6.
[[nodiscard]] QPainterPath drawnPath(QStringView letters);

} // namespace tolvo
