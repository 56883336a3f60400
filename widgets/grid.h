// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QWidget>
#include <algorithm>

namespace tolvo {

/// The measures of a window, derived from the height of its font: a user with large letters gets large
/// targets. At 100 % a line is about 16 pixels high.
class Grid {
  public:
    explicit Grid(const QWidget &widget) : Grid(widget.fontMetrics().height()) {}
    explicit constexpr Grid(int lineHeight) : m_unit(std::max(4, lineHeight / 4)) {}

    /// Between things that belong together.
    [[nodiscard]] constexpr int smallGap() const { return m_unit; }
    /// Between controls.
    [[nodiscard]] constexpr int gap() const { return 2 * m_unit; }
    /// Between the controls and the edge of the window.
    [[nodiscard]] constexpr int margin() const { return 3 * m_unit; }
    /// The least side of what is clicked; buttons are as high. Grid(16).target() is 32. Very large letters
    /// are large targets by themselves and leave the room to the text.
    [[nodiscard]] constexpr int target() const { return 4 * m_unit + std::min(4 * m_unit, 20); }
    /// The side of an icon on a button.
    [[nodiscard]] constexpr int icon() const { return 5 * m_unit; }

  private:
    int m_unit;
};

} // namespace tolvo
