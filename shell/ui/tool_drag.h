// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPoint>
#include <QString>
#include <optional>

class QMimeData;

namespace tolvo {

class PanelRowButton;

/// Lets a tool be dragged from its row of the panel.
class ToolDrag : public QObject {
    Q_OBJECT
  public:
    explicit ToolDrag(PanelRowButton &row);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void drag();

    PanelRowButton &m_row;
    std::optional<QPoint> m_pressed; ///< where the left button went down
};

/// What is dragged for a tool.
[[nodiscard]] QMimeData *draggedTool(const QString &token);
/// The token of what is dragged; empty for anything but a tool.
[[nodiscard]] QString tokenOf(const QMimeData *dragged);

} // namespace tolvo
