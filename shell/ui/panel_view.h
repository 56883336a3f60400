// SPDX-License-Identifier: MIT
// The panel of tools: the rows of cToolbox in the window.
#pragma once

#include "shell/cToolbox.h"

#include <QAbstractButton>
#include <QFrame>
#include <array>
#include <functional>

namespace tolvo {

/// One row: a mark in front of a category, the text, a colour.
class PanelRowButton : public QAbstractButton {
    Q_OBJECT
  public:
    explicit PanelRowButton(QWidget *parent);
    void showRow(const cToolbox::Row &row);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    cToolbox::Row m_row;
};

/// Up and Down walk the rows; Enter and the space bar press one.
class PanelView : public QFrame {
    Q_OBJECT
  public:
    explicit PanelView(QWidget *parent = nullptr);

    /// Takes over what has changed in the model's rows.
    void showRows(const cToolbox &toolbox);

    /// Called with the row's index (from 1) and whether the right button was used.
    std::function<void(int row, bool right)> onClick;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void moveFocus(int from, int step);

    std::array<PanelRowButton *, cToolbox::rowCount> m_rows{};
};

} // namespace tolvo
