// SPDX-License-Identifier: MIT
#include "shell/ui/window_size.h"

#include "widgets/themed_icon.h"

#include <QMouseEvent>
#include <QPainter>

namespace tolvo {

namespace {

constexpr QSize smallestOuter{8025, 5325};
constexpr QSize smallestDragged{7905, 4965};

} // namespace

QSize allowedOuterSize(QSize twips) {
    return twips.expandedTo(smallestOuter);
}

std::optional<QSize> draggedOuterSize(QPoint handle, int handleHeight, QPoint pointer) {
    const QSize size(handle.x() + pointer.x(), handle.y() + pointer.y() + handleHeight);
    if (size.width() < smallestDragged.width() || size.height() < smallestDragged.height())
        return std::nullopt;
    return size;
}

ResizeHandle::ResizeHandle(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("imgResize"));
    setAccessibleName(QStringLiteral("Resize the window"));
    setCursor(Qt::SizeFDiagCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ResizeHandle::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    themedIcon(QStringLiteral("resize")).paint(&painter, rect());
}

void ResizeHandle::mousePressEvent(QMouseEvent *event) {
    bResizing = event->button() == Qt::LeftButton && !window()->isMaximized();
}

void ResizeHandle::mouseMoveEvent(QMouseEvent *event) {
    if (!bResizing)
        return;
    const QPoint frameCorner = window()->geometry().topLeft() - window()->frameGeometry().topLeft();
    const QPoint handle = (mapTo(window(), QPoint()) + frameCorner) * twipsPerPixel;
    const auto outer = draggedOuterSize(handle, height() * twipsPerPixel, event->pos() * twipsPerPixel);
    if (!outer)
        return;
    const QSize frame = window()->frameGeometry().size() - window()->size();
    window()->resize(allowedOuterSize(*outer) / twipsPerPixel - frame);
}

void ResizeHandle::mouseReleaseEvent(QMouseEvent *) {
    bResizing = false;
}

} // namespace tolvo
