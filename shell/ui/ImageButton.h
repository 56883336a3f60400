// SPDX-License-Identifier: MIT
// The buttons of the bar above the text, and the lines between their groups.
#pragma once

#include <QToolButton>

namespace tolvo {

/// A button that shows an icon alone: a full target where there is room, narrower in a small window.
class ImageButton final : public QToolButton {
    Q_OBJECT

  public:
    ImageButton(const QString &icon, const QString &name);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

/// A thin upright line between two groups.
class GroupLine final : public QWidget {
    Q_OBJECT

  public:
    GroupLine();
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return {1, 1}; }

  protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tolvo
