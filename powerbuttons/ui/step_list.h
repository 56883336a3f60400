// SPDX-License-Identifier: MIT
#pragma once

#include <QListWidget>

namespace tolvo {

/// What a key or the menu of the list asks for. All but the last two are about the current step.
enum class StepCommand { MoveUp, MoveDown, Remove, Duplicate, Copy, Cut, Paste, Undo, Redo };

/// The steps of a PowerButton, one a line with a tick. It only asks: what comes of it is shown by
/// showSteps(). Positions count from 1.
class StepList : public QListWidget {
    Q_OBJECT
  public:
    explicit StepList(QWidget *parent);

    struct Step {
        QString line;
        bool off = false;
    };
    void showSteps(const QList<Step> &steps, int current);
    /// A few lines, so that a window may make it higher.
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] QSize sizeHint() const override;

  signals:
    void chosen(int position);
    void dragged(int from, int to);
    void ticked(int position, bool off);
    void asked(tolvo::StepCommand command);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void startDrag(Qt::DropActions actions) override;
    void dropEvent(QDropEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

  private:
    [[nodiscard]] int rowOfDrop(const QDropEvent &event) const;
    void settle();

    bool m_filling = false;
    bool m_dropped = false; ///< by the drag that is under way
    int m_shown = 0;        ///< the current row, as far as the window knows
};

} // namespace tolvo
