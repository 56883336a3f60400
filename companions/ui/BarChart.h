// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QWidget>

namespace tolvo {

/// Horizontal bars, one a row: a name, a bar in proportion to the largest value, the value.
class BarChart final : public QWidget {
    Q_OBJECT

  public:
    struct Bar {
        QString name;
        double value;
    };

    explicit BarChart(QWidget *parent = nullptr);

    /// Bars in the order in which they are painted.
    void setBars(const QList<Bar> &bars);
    [[nodiscard]] const QList<Bar> &bars() const { return m_bars; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent *event) override;

  private:
    [[nodiscard]] int rowHeight() const;

    QList<Bar> m_bars;
};

} // namespace tolvo
