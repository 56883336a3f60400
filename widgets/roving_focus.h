// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>

class QWidget;

namespace tolvo {

/// Makes a row of buttons one stop of the Tab key. Arrows move inside, Home and End go to the ends; the one
/// that had the focus last keeps the stop.
class RovingFocus : public QObject {
  public:
    /// The members in the order of the arrows; none may be missing. Lives as long as `parent`.
    RovingFocus(QList<QWidget *> members, QObject *parent);

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void stopAt(QWidget *member);
    bool keyPressed(qsizetype from, int key);

    QList<QWidget *> m_members;
};

} // namespace tolvo
