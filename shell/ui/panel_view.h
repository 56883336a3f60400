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
    [[nodiscard]] const cToolbox::Row &shown() const { return m_row; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] QFont letters() const;

    cToolbox::Row m_row;
};

/// One stop of the Tab key, at the row where the focus was last. Up, Down, Home and End walk the rows; Right
/// opens a category, and in an open one goes to its first tool; Left goes from a tool to its category, and
/// closes an open one; Enter and the space bar press a row.
class PanelView : public QFrame {
    Q_OBJECT
  public:
    explicit PanelView(QWidget *parent = nullptr);

    /// Takes over what has changed in the model's rows.
    void showRows(const cToolbox &toolbox);

    /// Called with the row's index (from 1) and whether the right button was used.
    std::function<void(int row, bool right)> onClick;
    /// The row under the pointer, or else with the focus, is another; null if there is none.
    std::function<void(const cToolbox::Row *row)> onPointed;
    /// A letter, a digit or a sign was typed in the panel.
    std::function<void(const QString &typed)> onTyped;
    /// Esc was pressed in the panel.
    std::function<void()> onEscape;

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    [[nodiscard]] PanelRowButton &row(int index) const { return *m_rows.at(static_cast<size_t>(index)); }
    /// Of the row that has the focus, from 0; -1 if none has.
    [[nodiscard]] int focusedIndex() const;
    [[nodiscard]] int visibleCount() const;
    [[nodiscard]] bool handleKey(int index, const QKeyEvent &key);
    [[nodiscard]] bool handleArrow(int index, int key);
    /// The row becomes the stop of the Tab key.
    void setStop(int index);
    void focusRow(int index);
    void tellPointed();

    std::array<PanelRowButton *, cToolbox::rowCount> m_rows{};
    int m_stop = 0; ///< index from 0
};

} // namespace tolvo
