// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>

namespace tolvo {

/// A box for a whole number from 0, with an up-down. It takes digits only: whatever else is typed or pasted
/// is dropped at once. Without a digit it counts as 0.
class NumberBox : public QAbstractSpinBox {
    Q_OBJECT

  public:
    struct Limits {
        int lowest = 0;
        int highest = 999999999;
        /// Typed numbers out of the limits are left to the dialog's own test.
        bool testedLater = false;
    };

    /// `name` is the object name of the text in the box; `meaning` tells what the number is for, to those who
    /// don't see the labels around it.
    NumberBox(const QString &name, const QString &meaning, Limits limits, QWidget *parent);

    [[nodiscard]] int value() const;
    void setValue(int value);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  signals:
    void changed();
    /// The up-down was used.
    void stepped();

  protected:
    QValidator::State validate(QString &input, int &position) const override;
    void stepBy(int steps) override;
    [[nodiscard]] StepEnabled stepEnabled() const override;

  private:
    /// A number below the lowest becomes the lowest when the box is left.
    void leave();

    Limits m_limits;
};

} // namespace tolvo
