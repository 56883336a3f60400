// SPDX-License-Identifier: MIT
// The list of tools that were found: two lines a row, the letters that were found marked. It takes no focus;
// the field above it moves the choice.
#pragma once

#include "shell/tool_finder.h"

#include <QListView>
#include <functional>

namespace tolvo {

class FoundToolsModel;

class FoundToolsList : public QListView {
    Q_OBJECT
  public:
    explicit FoundToolsList(QWidget *parent = nullptr);

    /// Shows these and chooses the first; `entries` are copied.
    void show(const QList<FinderEntry> &entries, const QList<FoundTool> &found);
    /// The chosen row from 0, -1 if there is none.
    [[nodiscard]] int chosen() const { return currentIndex().row(); }
    [[nodiscard]] int count() const;
    /// Moves the choice by rows; it stays within the list.
    void moveBy(int rows);
    [[nodiscard]] int rowsOnPage() const;

    /// Another row is chosen.
    std::function<void()> onChosen;
    /// A row was clicked, with the right button or another one.
    std::function<void(int row, bool right)> onClick;

  protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    FoundToolsModel *m_model;
    int m_pressed = -1;
};

} // namespace tolvo
