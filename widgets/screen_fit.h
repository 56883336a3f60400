// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSize>

class QWidget;

namespace tolvo {

/// The largest size of a window without its frame on the screen where it is.
[[nodiscard]] QSize roomOnScreen(const QWidget &window);

/// Lays a window out at once, with what it holds in an area that scrolls, so that its size hint is right.
void activateLayout(QWidget &window);

/// Keeps every window of the program on its screen, whatever the size of its letters: what a window holds is
/// moved into an area that scrolls as soon as it needs more than the screen has. A row or column of buttons
/// beside it stays where it is, and the focus scrolls into view. Boxes of the toolkit are left alone.
class ScreenFit : public QObject {
  public:
    /// Watches all windows for as long as `parent` lives. With a `room` that counts in place of the screen's.
    explicit ScreenFit(QObject *parent, QSize room = {});

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void fit(QWidget &window) const;

    QSize m_room;
};

} // namespace tolvo
