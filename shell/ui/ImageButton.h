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

    /// A short name for the place under the icon.
    void setShortName(const QString &name) { m_shortName = name; }
    /// Full targets with the short name, if there is one, or icons alone.
    void showName(bool shown);
    /// The size with the short name.
    [[nodiscard]] QSize namedSize() const;

  protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    QString m_shortName;
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
