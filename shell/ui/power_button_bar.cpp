// SPDX-License-Identifier: MIT
#include "shell/ui/power_button_bar.h"

#include "platform/desktop/plain_tool_tip.h"
#include "powerbuttons/button_file.h"
#include "powerbuttons/step_words.h"
#include "powerbuttons/ui/icon_painter.h"
#include "shell/ui/any_click.h"
#include "shell/ui/tool_drag.h"
#include "widgets/FoldingRow.h"
#include "widgets/contrast.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <QUrl>
#include <algorithm>
#include <cmath>

namespace tolvo {

namespace {

constexpr int frame = 2;

/// The tool tip, which names the steps and the keys: those of the function row, and the second set for
/// desktops that keep some of the first for themselves.
QString tooltip(const CPowerButton &button, int number) {
    if (!button.isDefined())
        return QStringLiteral("Right click to define this PowerButton (Shift-Alt-F%1)\nor Ctrl-Shift-%1")
            .arg(number);
    const QString keys = QStringLiteral("%2 (Alt-F%1)\nor Ctrl-%1").arg(number).arg(button.Name);
    return button.Count() == 0 ? keys : keys + u'\n' + stepWords(button);
}

/// The path of the first file of a PowerButton among what is dragged; empty if there is none.
QString buttonFileOf(const QMimeData *dragged) {
    if (dragged == nullptr)
        return {};
    for (const QUrl &url : dragged->urls()) {
        if (url.isLocalFile() && url.path().endsWith(buttonFileEnding, Qt::CaseInsensitive))
            return url.toLocalFile();
    }
    return {};
}

} // namespace

PowerButtonImage::PowerButtonImage(int number, QWidget *parent) : QAbstractButton(parent), m_number(number) {
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setAcceptDrops(true);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize PowerButtonImage::sizeHint() const {
    const int side = std::max(iconSide, Grid(*this).target()) + 2 * frame;
    return {side, side};
}

QSize PowerButtonImage::minimumSizeHint() const {
    constexpr int smallest = 24; // in a window as narrow as it can be
    return {smallest, sizeHint().height()};
}

void PowerButtonImage::showButton(const CPowerButton &button) {
    m_button = button;
    const QString tip = tooltip(button, m_number);
    setToolTip(plainToolTip(tip));
    setAccessibleDescription(tip);
    setAccessibleName(button.isDefined() ? QStringLiteral("PowerButton %1: %2").arg(m_number).arg(button.Name)
                                         : QStringLiteral("PowerButton %1, not defined").arg(m_number));
    update();
}

void PowerButtonImage::dragEnterEvent(QDragEnterEvent *event) {
    if (tokenOf(event->mimeData()).isEmpty() && buttonFileOf(event->mimeData()).isEmpty())
        return;
    event->acceptProposedAction();
    showTaking(true);
}

void PowerButtonImage::dragLeaveEvent(QDragLeaveEvent *) {
    showTaking(false);
}

void PowerButtonImage::dropEvent(QDropEvent *event) {
    showTaking(false);
    event->acceptProposedAction();
    const QString token = tokenOf(event->mimeData());
    const QString file = buttonFileOf(event->mimeData());
    if (!token.isEmpty() && onToolDropped)
        onToolDropped(token);
    else if (!file.isEmpty() && onFileDropped)
        // Whoever was dragged from waits for the end of this event, not for a dialog.
        QTimer::singleShot(0, this, [this, file] { onFileDropped(file); });
}

void PowerButtonImage::showTaking(bool taking) {
    m_taking = taking;
    update();
}

void PowerButtonImage::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = std::min(width(), height());
    QRectF tile(0, 0, side, side);
    tile.moveCenter(QRectF(rect()).center());
    const bool chosen = underMouse() || hasFocus() || isDown() || m_taking;
    QPen edge(chosen ? accent(palette()) : edgeColour(palette()), chosen ? 2 : 1);
    if (m_button.isDefined()) {
        const QRectF icon = tile.adjusted(frame, frame, -frame, -frame);
        QPainterPath rounded;
        rounded.addRoundedRect(icon, frame, frame);
        painter.setClipPath(rounded);
        paintIcon(painter, icon, shownIcon(m_button, m_number));
        painter.setClipping(false);
    } else {
        paintEmpty(painter, tile);
    }
    if (!m_button.isDefined() && !chosen)
        edge.setDashPattern({3, 2});
    if (isDown())
        edge.setWidth(3);
    painter.setPen(edge);
    painter.setBrush(Qt::NoBrush);
    const qreal inset = edge.widthF() / 2;
    painter.drawRoundedRect(tile.adjusted(inset, inset, -inset, -inset), 4, 4);
    if (m_button.isDefined() && !iconOf(m_button).text.trimmed().isEmpty())
        paintBadge(painter, tile); // without a text the number is the icon
    if (m_taking && m_button.isDefined()) {
        const qreal inside = tile.width() / 6;
        painter.setPen(QPen(Qt::white, 2));
        painter.setBrush(accent(QPalette(Qt::white)));
        painter.drawEllipse(tile.adjusted(inside, inside, -inside, -inside));
        paintPlus(painter, tile);
    }
}

/// The number in the corner. The icon's ground is white under every theme, and so the badge has the same
/// colours under all of them.
void PowerButtonImage::paintBadge(QPainter &painter, const QRectF &tile) const {
    const qreal size = std::round(tile.width() * 0.4);
    const QRectF badge(tile.right() - size - 0.5, tile.bottom() - size - 0.5, size, size);
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(accent(QPalette(Qt::white)));
    painter.drawEllipse(badge);
    QFont digits = font();
    digits.setBold(true);
    digits.setPixelSize(static_cast<int>(size * 0.75));
    painter.setFont(digits);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, QString::number(m_number));
}

/// The number; a plus where a click will define the button.
void PowerButtonImage::paintEmpty(QPainter &painter, const QRectF &tile) const {
    if (!underMouse() && !m_taking) {
        painter.setPen(mixed(palette().color(QPalette::Window), palette().color(QPalette::WindowText),
                             textContrast + 0.5));
        painter.drawText(tile, Qt::AlignCenter, QString::number(m_number));
        return;
    }
    painter.setPen(QPen(accent(palette()), 2));
    paintPlus(painter, tile);
}

void PowerButtonImage::paintPlus(QPainter &painter, const QRectF &tile) const {
    const qreal arm = tile.width() / 5;
    const QPointF middle = tile.center();
    painter.drawLine(middle - QPointF(arm, 0), middle + QPointF(arm, 0));
    painter.drawLine(middle - QPointF(0, arm), middle + QPointF(0, arm));
}

PowerButtonBar::PowerButtonBar(QWidget *parent) : QWidget(parent) {
    setObjectName(QStringLiteral("frmIcontray"));
    setAccessibleName(QStringLiteral("PowerButtons"));
    auto *layout = new FoldingRow(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    for (int i = 0; i < CPowerButtonCollection::buttonCount; ++i) {
        auto *image = new PowerButtonImage(i + 1, this);
        image->setObjectName(QStringLiteral("imgPower_%1").arg(i));
        new AnyClick(image, [this, i](bool right) {
            if (onClick)
                onClick(i, right);
        });
        image->onToolDropped = [this, i](const QString &token) {
            if (onToolDropped)
                onToolDropped(i, token);
        };
        image->onFileDropped = [this, i](const QString &path) {
            if (onFileDropped)
                onFileDropped(i, path);
        };
        layout->addWidget(image);
        m_images[static_cast<std::size_t>(i)] = image;
    }
}

void PowerButtonBar::showButton(int index, const CPowerButton &button) {
    m_images[static_cast<std::size_t>(index)]->showButton(button);
}

} // namespace tolvo
