// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLineEdit;

namespace tolvo {

/// A wave line under one character of a line edit, which it covers and lets everything through to.
class MistakeMark final : public QWidget {
  public:
    /// Belongs to the line edit.
    explicit MistakeMark(QLineEdit &edit);

    /// The place from 0, that of the end included; -1 for no mark.
    void mark(qsizetype place);
    [[nodiscard]] qsizetype place() const { return m_place; }

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] QRectF markedArea() const;

    QLineEdit &m_edit;
    qsizetype m_place = -1;
};

} // namespace tolvo
