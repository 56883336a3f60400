// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <limits>

namespace tolvo {

/// A box for a whole number, with an up-down, as wide as the number needs. It takes digits only: whatever
/// else is typed or pasted is dropped at once. Without a digit it counts as 0.
class NumberBox : public QAbstractSpinBox {
    Q_OBJECT

  public:
    struct Limits {
        int lowest = 0;
        int highest = std::numeric_limits<int>::max();
        /// Typed numbers out of the limits are left to the dialog's own test.
        bool testedLater = false;
        /// A minus sign may be typed in front.
        bool takesMinus = false;
    };

    /// `name` is the object name of the text in the box; `meaning` says what the number is for, to those who
    /// don't see the labels around it.
    NumberBox(const QString &name, const QString &meaning, Limits limits, QWidget *parent);

    /// The number that the box holds once it is left: one below the lowest is the lowest, unless it was set
    /// and nobody has changed it.
    [[nodiscard]] int value() const;
    /// Shows the number, also one below the lowest; one above the highest becomes the highest.
    void setValue(int value);
    /// Takes the focus with the number selected, for another to be typed over it.
    void begin();
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    void changed();
    /// The user typed, or used the up-down.
    void edited();

  protected:
    QValidator::State validate(QString &input, int &position) const override;
    void stepBy(int steps) override;
    [[nodiscard]] StepEnabled stepEnabled() const override;

  private:
    [[nodiscard]] int highestTyped() const;
    /// A number below the lowest becomes the lowest when the box is left.
    void leave();

    Limits m_limits;
    QString m_set; ///< the number as it was set last
};

} // namespace tolvo
