// SPDX-License-Identifier: MIT
// The rules for the size of the main window, in twips (a twentieth of a point; 15 to a pixel of 96 to the
// inch).
#pragma once

#include <QPoint>
#include <QSize>
#include <QWidget>
#include <optional>

namespace tolvo {

inline constexpr int twipsPerPixel = 15;

/// Outer sizes below 8025 by 5325 twips are brought up to them.
[[nodiscard]] QSize allowedOuterSize(QSize twips);

/// The outer size for a pointer at `pointer` inside the drag handle, all in twips: the handle's left plus X,
/// and its top plus Y plus its height. The width gets no such term, so that the corner sticks to the
/// pointer as users know it. Nothing if that is below 7905 by 4965: these bounds lie below those of
/// allowedOuterSize, which has the last word.
[[nodiscard]] std::optional<QSize> draggedOuterSize(QPoint handle, int handleHeight, QPoint pointer);

/// imgResize: the handle in the lower right corner. It does nothing while the window is maximised.
class ResizeHandle : public QWidget {
    Q_OBJECT
  public:
    explicit ResizeHandle(QWidget *parent);
    [[nodiscard]] QSize sizeHint() const override { return {16, 16}; }

  protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

  private:
    bool bResizing = false;
};

} // namespace tolvo
