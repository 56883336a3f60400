// SPDX-License-Identifier: MIT
// How the text is looked at: its size, and marks for what shows nothing of itself.
#include "base/unseen_characters.h"
#include "platform/desktop/PlainTextBox.h"

#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>

namespace tolvo {

namespace {

constexpr int wheelStep = 120; // eighths of a degree
/// Each mark is looked for in its line, so a screen full of them is painted in part only.
constexpr int mostMarksPainted = 1000;

QFont scaled(QFont font, int percent) {
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * percent / 100);
    else
        font.setPixelSize(std::max(1, font.pixelSize() * percent / 100));
    return font;
}

/// Readable on the ground of the text in light and dark.
QColor markColor(const QPalette &palette) {
    const bool dark = palette.color(QPalette::Base).lightness() < 128;
    return dark ? QColor(122, 184, 255) : QColor(0, 84, 194);
}

/// A thin upright with a flag at its top, at the place of a character without a shape.
void paintMark(QPainter &painter, const QPointF &top, qreal height) {
    const qreal flag = std::max(2.0, height / 6);
    painter.fillRect(QRectF(top.x() - 0.5, top.y(), 1.5, height), painter.brush());
    painter.drawPolygon(QPolygonF{top, top + QPointF(flag, flag / 2), top + QPointF(0, flag)});
}

} // namespace

void PlainTextBox::setTextFont(const QFont &font) {
    m_textFont = font;
    setFont(scaled(m_textFont, m_zoom));
}

void PlainTextBox::setZoom(int percent) {
    m_zoom = percent;
    setFont(scaled(m_textFont, m_zoom));
}

void PlainTextBox::setRoomAbove(int pixels) {
    if (pixels == viewportMargins().top())
        return;
    disconnect(m_endOfRoom);
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(pixels > 0);
    setViewportMargins(0, pixels, 0, 0);
    if (pixels > 0)
        m_endOfRoom =
            connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { setRoomAbove(0); });
}

void PlainTextBox::setMarks(bool on) {
    if (on == m_marks)
        return;
    m_marks = on;
    QTextOption option = document()->defaultTextOption();
    QTextOption::Flags flags = option.flags();
    flags.setFlag(QTextOption::ShowTabsAndSpaces, on);
    flags.setFlag(QTextOption::ShowLineAndParagraphSeparators, on);
    option.setFlags(flags);
    document()->setDefaultTextOption(option);
    viewport()->update();
}

void PlainTextBox::wheelEvent(QWheelEvent *event) {
    if (!onZoom || !event->modifiers().testFlag(Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    m_wheel += event->angleDelta().y();
    if (const int steps = m_wheel / wheelStep; steps != 0) {
        m_wheel -= steps * wheelStep;
        onZoom(steps);
    }
    event->accept();
}

void PlainTextBox::paintEvent(QPaintEvent *event) {
    paintTint(TextTint::Side::BeneathText, event->rect());
    QPlainTextEdit::paintEvent(event);
    paintTint(TextTint::Side::OverText, event->rect());
    if (!m_marks)
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(markColor(palette()));
    int left = mostMarksPainted;
    for (QTextBlock block = firstVisibleBlock(); block.isValid() && left > 0; block = block.next()) {
        const QRectF area = blockBoundingGeometry(block).translated(contentOffset());
        if (area.top() > event->rect().bottom())
            return;
        const QString text = block.text();
        for (qsizetype at = 0; at < text.size() && left > 0; ++at) {
            if (!isUnseen(text[at]))
                continue;
            const QTextLine line = block.layout()->lineForTextPosition(static_cast<int>(at));
            if (!line.isValid() || area.top() + line.rect().bottom() < event->rect().top())
                continue;
            const QPointF place(line.cursorToX(static_cast<int>(at)), line.y());
            paintMark(painter, area.topLeft() + place, line.height());
            --left;
        }
    }
}

} // namespace tolvo
