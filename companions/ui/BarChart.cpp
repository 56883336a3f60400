// SPDX-License-Identifier: MIT
#include "companions/ui/BarChart.h"

#include "base/numbers.h"
#include "widgets/themed_icon.h"

#include <QPainter>
#include <algorithm>

namespace tolvo {

BarChart::BarChart(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum);
}

void BarChart::setBars(const QList<Bar> &bars) {
    m_bars = bars;
    QStringList words;
    for (const Bar &bar : bars)
        words += QStringLiteral("%1: %2").arg(bar.name, groupedNumber(static_cast<qint64>(bar.value)));
    setAccessibleName(QStringLiteral("Bar chart"));
    setAccessibleDescription(words.join(QStringLiteral("; ")));
    updateGeometry();
    update();
}

int BarChart::rowHeight() const {
    return fontMetrics().height() * 7 / 4;
}

QSize BarChart::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 50, minimumSizeHint().height()};
}

QSize BarChart::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 30, rowHeight() * static_cast<int>(qMax(m_bars.size(), 3))};
}

void BarChart::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_bars.isEmpty()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Nothing has been counted yet"));
        return;
    }
    const int gap = fontMetrics().averageCharWidth();
    int names = 0;
    int numbers = 0;
    double largest = 1;
    for (const Bar &bar : std::as_const(m_bars)) {
        names = qMax(names, fontMetrics().horizontalAdvance(bar.name));
        numbers =
            qMax(numbers, fontMetrics().horizontalAdvance(groupedNumber(static_cast<qint64>(bar.value))));
        largest = qMax(largest, bar.value);
    }
    names = qMin(names, width() * 2 / 5);
    const int left = names + 2 * gap;
    const int room = qMax(width() - left - numbers - 2 * gap, gap);
    for (qsizetype i = 0; i < m_bars.size(); ++i) {
        const Bar &bar = m_bars.at(i);
        const QRect row(0, static_cast<int>(i) * rowHeight(), width(), rowHeight());
        const QString name = fontMetrics().elidedText(bar.name, Qt::ElideRight, names);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(gap, row.top(), names, row.height()), Qt::AlignVCenter | Qt::AlignRight, name);
        const double length = qMax(room * bar.value / largest, bar.value > 0 ? 2.0 : 0.0);
        const QRectF shape(left, row.top() + row.height() * 0.2, length, row.height() * 0.6);
        painter.setPen(Qt::NoPen);
        painter.setBrush(accent(palette()));
        painter.drawRoundedRect(shape, 2, 2);
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(static_cast<int>(shape.right()) + gap, row.top(), numbers + gap, row.height()),
                         Qt::AlignVCenter | Qt::AlignLeft, groupedNumber(static_cast<qint64>(bar.value)));
    }
}

} // namespace tolvo
