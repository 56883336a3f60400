// SPDX-License-Identifier: MIT
#include "shell/ui/panel_view.h"

#include "platform/desktop/plain_tool_tip.h"
#include "shell/ui/any_click.h"
#include "shell/ui/panel_accessibility.h"
#include "shell/ui/row_painting.h"
#include "shell/ui/tool_drag.h"
#include "widgets/themed_icon.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>

namespace tolvo {

namespace {

constexpr int markLeft = 8;
constexpr qreal markWidth = 8;
constexpr int textLeft = 24;
constexpr int toolIndent = 8;
constexpr int rightMargin = 8;

/// An arrow that points down if `open`, else to the right.
void paintMark(QPainter &painter, qreal middle, bool open) {
    constexpr qreal half = markWidth / 2;
    const QPointF centre(markLeft + half, middle);
    const QPointF away = open ? QPointF(half, -half / 2) : QPointF(-half / 2, half);
    const QPointF tip = open ? QPointF(0, half / 2) : QPointF(half / 2, 0);
    const QPointF other = open ? QPointF(-half, -half / 2) : QPointF(-half / 2, -half);
    painter.drawPolyline(QPolygonF{centre + away, centre + tip, centre + other});
}

bool isOpenCategory(const cToolbox::Row &row) {
    return row.visible && row.mark == cToolbox::Mark::Open;
}

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
    const bool opened = m_row.mark != row.mark && m_row.text == row.text;
    m_row = row;
    setToolTip(plainToolTip(row.tooltip));
    setAccessibleName(row.text);
    setAccessibleDescription(row.tooltip);
    setCursor(row.visible ? Qt::PointingHandCursor : Qt::ArrowCursor);
    setEnabled(row.visible);
    if (opened)
        reportExpanded(*this);
    update();
}

QSize PanelRowButton::sizeHint() const {
    return {214, fontMetrics().height() + 5};
}

QSize PanelRowButton::minimumSizeHint() const {
    constexpr int letters = 20; // of a category and its mark
    const int share = screen()->availableSize().width() / 5;
    const int width = std::max(150, std::min(letters * fontMetrics().averageCharWidth(), share));
    return {width, fontMetrics().height() * 4 / 5}; // the letters shrink with the row
}

/// The window's letters, smaller in a row that is too low for them.
QFont PanelRowButton::letters() const {
    QFont face = font();
    const int needed = fontMetrics().height() - 2;
    if (height() < needed)
        face.setPixelSize(std::max(1, QFontInfo(face).pixelSize() * height() / needed));
    return face;
}

void PanelRowButton::paintEvent(QPaintEvent *) {
    if (!m_row.visible)
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = QRectF(rect()).adjusted(3.5, 0.5, -3.5, -0.5);
    paintRowGround(painter, area, palette(),
                   {.tinted = underMouse() || hasFocus(), .pressed = isDown(), .framed = hasFocus()});
    const bool category = m_row.colour == cToolbox::Colour::Category;
    const bool open = m_row.mark == cToolbox::Mark::Open;
    const QColor green = accentOn(palette(), QPalette::Base);
    painter.setBrush(Qt::NoBrush);
    if (m_row.mark != cToolbox::Mark::Hidden) {
        painter.setPen(QPen(green, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.save();
        if (isRightToLeft()) {
            painter.translate(width(), 0);
            painter.scale(-1, 1);
        }
        paintMark(painter, area.center().y(), open);
        painter.restore();
    }
    QFont face = letters();
    face.setBold(category && open);
    painter.setFont(face);
    painter.setPen(category ? palette().color(QPalette::Text) : green);
    const QRect textArea =
        QStyle::visualRect(layoutDirection(), rect(),
                           rect().adjusted(category ? textLeft : textLeft + toolIndent, 0, -rightMargin, 0));
    painter.drawText(textArea, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(face).elidedText(m_row.text, Qt::ElideRight, textArea.width()));
}

PanelView::PanelView(QWidget *parent) : QFrame(parent) {
    describePanels();
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
        new ToolDrag(*row);
        layout->addWidget(row);
        m_rows.at(static_cast<size_t>(i)) = row;
    }
    layout->addStretch(1);
}

/// While rows slide, the focus stays with the row that has it, wherever it goes; with one that goes away it
/// stays at its place, or in the last row.
void PanelView::showRows(const cToolbox &toolbox) {
    const int focused = focusedIndex();
    const QString name = row(focused < 0 ? m_stop : focused).shown().text;
    int count = 0;
    int to = -1;
    for (int i = 0; i < cToolbox::rowCount && toolbox.row(i + 1).visible; ++i, ++count) {
        if (toolbox.row(i + 1).text == name)
            to = i;
    }
    if (to < 0)
        to = std::clamp(m_stop, 0, std::max(count - 1, 0));
    row(to).showRow(toolbox.row(to + 1));
    setStop(to);
    // A row that is disabled while it has the focus would hand it to whatever comes next.
    if (focused >= 0 && row(to).isEnabled())
        row(to).setFocus(Qt::TabFocusReason);
    for (int i = 0; i < cToolbox::rowCount; ++i)
        row(i).showRow(toolbox.row(i + 1));
    tellPointed();
}

bool PanelView::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
    case QEvent::KeyPress: {
        const auto *const place = std::find(m_rows.begin(), m_rows.end(), watched);
        if (place != m_rows.end() &&
            handleKey(static_cast<int>(place - m_rows.begin()), *static_cast<QKeyEvent *>(event)))
            return true;
        break;
    }
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
        tellPointed();
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

bool PanelView::handleKey(int index, const QKeyEvent &key) {
    const bool shifted = key.modifiers() == Qt::ShiftModifier;
    if (key.modifiers() != Qt::NoModifier && key.modifiers() != Qt::KeypadModifier && !shifted)
        return false;
    const bool enter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
    if (enter && onClick) {
        onClick(index + 1, shifted);
        return true;
    }
    if (key.key() == Qt::Key_Escape && onEscape) {
        onEscape();
        return true;
    }
    if (!shifted && handleArrow(index, key.key()))
        return true;
    const QString typed = key.text();
    if (typed.isEmpty() || !typed.front().isPrint() || typed.front().isSpace() || !onTyped)
        return false;
    onTyped(typed);
    return true;
}

bool PanelView::handleArrow(int index, int key) {
    const cToolbox::Row &shown = row(index).shown();
    switch (key) {
    case Qt::Key_Up:
        focusRow(index - 1);
        return true;
    case Qt::Key_Down:
        focusRow(index + 1);
        return true;
    case Qt::Key_Home:
        focusRow(0);
        return true;
    case Qt::Key_End:
        focusRow(visibleCount() - 1);
        return true;
    case Qt::Key_Right:
        if (isOpenCategory(shown))
            focusRow(index + 1);
        else if (shown.isCategory() && onClick)
            onClick(index + 1, false);
        return true;
    case Qt::Key_Left:
        if (isOpenCategory(shown) && onClick)
            onClick(index + 1, false);
        while (!row(index).shown().isCategory() && index > 0)
            focusRow(--index);
        return true;
    default:
        return false;
    }
}

int PanelView::focusedIndex() const {
    const auto *const place =
        std::find_if(m_rows.begin(), m_rows.end(), [](const auto *one) { return one->hasFocus(); });
    return place == m_rows.end() ? -1 : static_cast<int>(place - m_rows.begin());
}

int PanelView::visibleCount() const {
    return static_cast<int>(
        std::count_if(m_rows.begin(), m_rows.end(), [](const auto *one) { return one->isEnabled(); }));
}

void PanelView::setStop(int index) {
    m_stop = index;
    for (int i = 0; i < cToolbox::rowCount; ++i)
        row(i).setFocusPolicy(i == index ? Qt::TabFocus : Qt::NoFocus);
}

void PanelView::focusRow(int index) {
    if (index < 0 || index >= cToolbox::rowCount || !row(index).isEnabled())
        return;
    setStop(index);
    row(index).setFocus(Qt::TabFocusReason);
}

void PanelView::tellPointed() {
    if (!onPointed)
        return;
    const cToolbox::Row *pointed = nullptr;
    for (const PanelRowButton *one : m_rows) {
        if (one->isEnabled() && (one->underMouse() || (!pointed && one->hasFocus())))
            pointed = &one->shown();
    }
    onPointed(pointed);
}

} // namespace tolvo
