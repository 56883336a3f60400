// SPDX-License-Identifier: MIT
#include "shell/ui/tool_drag.h"

#include "shell/ui/panel_view.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>

namespace tolvo {

namespace {

QString mimeType() {
    return QStringLiteral("application/x-tolvo-tool");
}

} // namespace

QMimeData *draggedTool(const QString &token) {
    auto *data = new QMimeData;
    data->setData(mimeType(), token.toUtf8());
    return data;
}

QString tokenOf(const QMimeData *dragged) {
    return dragged == nullptr ? QString() : QString::fromUtf8(dragged->data(mimeType()));
}

ToolDrag::ToolDrag(PanelRowButton &row) : QObject(&row), m_row(row) {
    row.installEventFilter(this);
}

bool ToolDrag::eventFilter(QObject *watched, QEvent *event) {
    const auto place = [event] { return static_cast<QMouseEvent *>(event)->pos(); };
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        if (static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton && !m_row.shown().isCategory())
            m_pressed = place();
        break;
    case QEvent::MouseMove:
        if (m_pressed && (place() - *m_pressed).manhattanLength() >= QApplication::startDragDistance()) {
            drag();
            return true;
        }
        break;
    case QEvent::MouseButtonRelease:
        m_pressed.reset();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void ToolDrag::drag() {
    m_pressed.reset();
    m_row.setDown(false); // the end of the drag is no click
    auto *drag = new QDrag(&m_row);
    drag->setMimeData(draggedTool(m_row.shown().tag));
    drag->setPixmap(m_row.grab());
    drag->exec(Qt::CopyAction);
}

} // namespace tolvo
