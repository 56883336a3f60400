// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <functional>

class QMenu;

namespace tolvo {

class ImageButton;

/// Shows the names of a bar's image buttons under their icons, as the user chose in the context menu of the
/// bar: at first where the bar has room for all of them in one line.
class NamesUnderIcons : public QObject {
  public:
    /// The store holds these numbers.
    enum class Choice { WithRoom = 0, Always = 1, Never = 2 };

    /// Lives as long as the bar; what stands in its layout later counts as well.
    explicit NamesUnderIcons(QWidget &bar);

    void setChoice(Choice choice);
    /// Offers the three choices.
    void extendMenu(QMenu &menu);

    std::function<void(Choice)> onChosen; ///< by the user

  protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

  private:
    void arrange();
    [[nodiscard]] bool hasRoom() const;
    [[nodiscard]] QList<ImageButton *> buttons() const;

    QWidget &m_bar;
    Choice m_choice = Choice::WithRoom;
};

} // namespace tolvo
