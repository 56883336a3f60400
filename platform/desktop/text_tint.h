// SPDX-License-Identifier: MIT
// Marked parts of a text box: several kinds at a time, each in a layer of its own.
#pragma once

#include <QColor>
#include <QList>
#include <QPalette>
#include <QRectF>
#include <array>
#include <cstddef>

class QPainter;
class QTextBlock;

namespace tolvo {

/// A part of a text, in UTF-16 units from 0.
struct Stretch {
    int start = 0;
    int length = 0;

    bool operator==(const Stretch &) const = default;
};

/// What marks are about, from the lowest layer to the uppermost.
enum class TintLayer {
    Changes,      ///< what a tool has changed
    Troubles,     ///< what looks wrong; an empty one means its whole line
    Matches,      ///< what a search finds
    CurrentMatch, ///< the one of these that is selected: a frame around the text
};

/// The marks of one text box. Those of a layer stand in the order of the text; none lies within another.
class TextTint {
  public:
    static constexpr std::size_t layers = 4;

    /// False if they are these already.
    bool set(TintLayer layer, const QList<Stretch> &stretches);
    [[nodiscard]] const QList<Stretch> &of(TintLayer layer) const { return m_layers[index(layer)]; }
    [[nodiscard]] bool isEmpty() const;
    /// How much of a layer's colours shows: 1 all of it, 0 nothing.
    void setStrength(TintLayer layer, float share) { m_strengths[index(layer)] = share; }

    enum class Side { BeneathText, OverText };
    /// Paints what lies in a part of a block; `origin` is where its layout begins. `left` counts down with
    /// each mark painted, and nothing is painted from 0 on.
    void paint(QPainter &painter, Side side, const QTextBlock &block, const QPointF &origin,
               const QRectF &exposed, const QPalette &palette, int &left) const;

  private:
    [[nodiscard]] static std::size_t index(TintLayer layer) { return static_cast<std::size_t>(layer); }

    std::array<QList<Stretch>, layers> m_layers;
    std::array<float, layers> m_strengths{1, 1, 1, 1};
};

} // namespace tolvo
