// SPDX-License-Identifier: MIT
#include "shell/ui/panel_view.h"

#include "platform/desktop/plain_tool_tip.h"
#include "shell/ui/any_click.h"
#include "widgets/themed_icon.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvo {

namespace {
constexpr int markSide = 14;
constexpr int textLeft = 22;
constexpr int rightMargin = 8;
} // namespace

PanelRowButton::PanelRowButton(QWidget *parent) : QAbstractButton(parent) {
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    setMaximumHeight(fontMetrics().height() + 8);
    setEnabled(false);
}

void PanelRowButton::showRow(const cToolbox::Row &row) {
    if (m_row == row)
        return;
    m_row = row;
    setToolTip(plainToolTip(row.tooltip));
    setAccessibleName(row.text);
    setAccessibleDescription(row.tooltip);
    setFocusPolicy(row.visible ? Qt::TabFocus : Qt::NoFocus);
    setCursor(row.visible ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setEnabled(row.visible);
    update();
}

QSize PanelRowButton::sizeHint() const {
    return {190, fontMetrics().height() + 5};
}

QSize PanelRowButton::minimumSizeHint() const {
    return {150, fontMetrics().height() + 1};
}

void PanelRowButton::paintEvent(QPaintEvent *) {
    if (!m_row.visible)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(3.5, 0.5, -3.5, -0.5);
    if (underMouse() || isDown()) {
        QColor glow = accent(palette());
        glow.setAlpha(isDown() ? 70 : 34);
        painter.setPen(Qt::NoPen);
        painter.setBrush(glow);
        painter.drawRoundedRect(area, 4, 4);
    }
    const bool category = m_row.colour == cToolbox::Colour::Category;
    const bool open = m_row.mark == cToolbox::Mark::Open;
    if (m_row.mark != cToolbox::Mark::Hidden) {
        const QIcon mark = themedIcon(open ? QStringLiteral("node-open") : QStringLiteral("node-closed"));
        mark.paint(&painter, QRect(6, (height() - markSide) / 2, markSide, markSide));
    }
    QFont face = font();
    face.setBold(category && open);
    painter.setFont(face);
    painter.setPen(category ? palette().color(QPalette::WindowText) : accent(palette()));
    const QRect textArea = rect().adjusted(category ? textLeft : textLeft + 8, 0, -rightMargin, 0);
    painter.drawText(textArea, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(face).elidedText(m_row.text, Qt::ElideRight, textArea.width()));
    if (hasFocus()) {
        painter.setPen(QPen(accent(palette()), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(area, 4, 4);
    }
}

PanelView::PanelView(QWidget *parent) : QFrame(parent) {
    setObjectName(QStringLiteral("Picture1"));
    setAccessibleName(QStringLiteral("Tools"));
    setFrameShape(QFrame::StyledPanel);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setSpacing(0);
    for (int i = 0; i < cToolbox::rowCount; ++i) {
        auto *row = new PanelRowButton(this);
        row->setObjectName(QStringLiteral("lblToolbox_%1").arg(i + 1));
        row->installEventFilter(this);
        new AnyClick(row, [this, i](bool right) {
            if (onClick)
                onClick(i + 1, right);
        });
        layout->addWidget(row);
        m_rows[static_cast<std::size_t>(i)] = row;
    }
    layout->addStretch(1);
}

/// While rows slide, the focus stays with the row that has it, wherever it goes.
void PanelView::showRows(const cToolbox &toolbox) {
    QString focused;
    for (const PanelRowButton *row : m_rows) {
        if (row->hasFocus())
            focused = row->accessibleName();
    }
    for (int i = 0; i < cToolbox::rowCount; ++i)
        m_rows[static_cast<std::size_t>(i)]->showRow(toolbox.row(i + 1));
    for (PanelRowButton *row : m_rows) {
        if (row->isEnabled() && !focused.isEmpty() && row->accessibleName() == focused)
            row->setFocus(Qt::TabFocusReason);
    }
}

bool PanelView::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::KeyPress) {
        const auto *key = static_cast<QKeyEvent *>(event);
        const auto *const place = std::find(m_rows.begin(), m_rows.end(), watched);
        if (place != m_rows.end() && key->modifiers() == Qt::NoModifier) {
            const int index = static_cast<int>(place - m_rows.begin());
            if (key->key() == Qt::Key_Down || key->key() == Qt::Key_Up) {
                moveFocus(index, key->key() == Qt::Key_Down ? 1 : -1);
                return true;
            }
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                (*place)->click();
                return true;
            }
        }
    }
    return QFrame::eventFilter(watched, event);
}

void PanelView::moveFocus(int from, int step) {
    const int to = from + step;
    if (to >= 0 && to < cToolbox::rowCount && m_rows[static_cast<std::size_t>(to)]->isEnabled())
        m_rows[static_cast<std::size_t>(to)]->setFocus(Qt::TabFocusReason);
}

} // namespace tolvo
