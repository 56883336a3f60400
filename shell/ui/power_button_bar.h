// SPDX-License-Identifier: MIT
// The row of the eight PowerButtons.
#pragma once

#include "powerbuttons/CPowerButton.h"

#include <QAbstractButton>
#include <array>
#include <functional>

namespace tolvo {

/// One PowerButton: its text icon on white with its number in a badge, or a dashed place with the number
/// alone.
class PowerButtonImage : public QAbstractButton {
    Q_OBJECT
  public:
    PowerButtonImage(int number, QWidget *parent);
    void showButton(const CPowerButton &button);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

    /// A tool was dropped on it.
    std::function<void(const QString &token)> onToolDropped;
    /// The file of a PowerButton was dropped on it.
    std::function<void(const QString &path)> onFileDropped;

  protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void showTaking(bool taking);
    void paintPlus(QPainter &painter, const QRectF &tile) const;
    void paintBadge(QPainter &painter, const QRectF &tile) const;
    void paintEmpty(QPainter &painter, const QRectF &tile) const;

    int m_number;
    bool m_taking = false; ///< a tool is held over it
    CPowerButton m_button;
};

class PowerButtonBar : public QWidget {
    Q_OBJECT
  public:
    explicit PowerButtonBar(QWidget *parent = nullptr);

    /// Paints the icon of an index from 0 and sets its tool tip.
    void showButton(int index, const CPowerButton &button);

    /// Called with the index from 0 and whether the right button was used.
    std::function<void(int index, bool right)> onClick;
    /// A tool was dropped on the button of an index from 0.
    std::function<void(int index, const QString &token)> onToolDropped;
    /// The file of a PowerButton was dropped on the button of an index from 0.
    std::function<void(int index, const QString &path)> onFileDropped;

  private:
    std::array<PowerButtonImage *, CPowerButtonCollection::buttonCount> m_images{};
};

} // namespace tolvo
