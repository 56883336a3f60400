// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace tolvo {

/// A line of plain text that may be narrower than its text: the rest gives way to an ellipsis, and a tool tip
/// shows the whole. Screen readers always get the whole text, and `nameWithoutText` for an empty one.
class ElidedLabel : public QLabel {
    Q_OBJECT
  public:
    ElidedLabel(const QString &name, const QString &nameWithoutText);

    void showText(const QString &text);
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;
    bool event(QEvent *event) override;

  private:
    QString m_nameWithoutText;
};

} // namespace tolvo
