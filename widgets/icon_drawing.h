// SPDX-License-Identifier: MIT
#pragma once

class QByteArray;
class QPainter;
class QRectF;

namespace tolvo {

/// Paints an SVG file's view box into a square, as far as the program's own icons use that language: groups,
/// paths, circles and rectangles with fill and stroke. What it doesn't know is left out; a file that can't be
/// read paints nothing.
void paintDrawing(QPainter &painter, const QRectF &square, const QByteArray &file);

} // namespace tolvo
