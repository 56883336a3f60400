// SPDX-License-Identifier: MIT
#include "search/ui/mistake_mark.h"

#include "widgets/contrast.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

namespace tolvo {

namespace {

constexpr qreal waveHeight = 3;
constexpr qreal waveLength = 6;
constexpr qsizetype longestText = 1000; // units; more than any line edit shows

QColor mistakeColour(const QPalette &palette) {
    return mixed(palette.color(QPalette::Base), QColor(255, 40, 40), lineContrast);
}

} // namespace

MistakeMark::MistakeMark(QLineEdit &edit) : QWidget(&edit), m_edit(edit) {
    setObjectName(QStringLiteral("mistake"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    edit.installEventFilter(this);
    for (const auto changed : {&QLineEdit::selectionChanged, &QLineEdit::editingFinished})
        connect(&edit, changed, this, [this] { update(); });
    connect(&edit, &QLineEdit::cursorPositionChanged, this, [this] { update(); });
}

void MistakeMark::mark(qsizetype place) {
    m_place = place;
    setGeometry(m_edit.rect());
    setVisible(place >= 0);
    raise();
    update();
}

bool MistakeMark::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize)
        setGeometry(m_edit.rect());
    return QWidget::eventFilter(watched, event);
}

/// The line edit says where its caret is; from there the text is laid out as the line edit does it. Empty if
/// the place is out of sight.
QRectF MistakeMark::markedArea() const {
    const int caretAt = m_edit.cursorPosition();
    int place = static_cast<int>(std::min(m_place, m_edit.text().size()));
    QString text = m_edit.text();
    int laidOutFrom = 0;
    if (text.size() > longestText) { // it takes too long to lay out all of it
        laidOutFrom = std::min(caretAt, place);
        if (std::abs(caretAt - place) > longestText)
            return {};
        text = text.mid(laidOutFrom, std::abs(caretAt - place) + 1);
        place -= laidOutFrom;
    }
    QTextLayout layout(text, m_edit.font());
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    if (!line.isValid())
        return {};
    const QRectF caret = m_edit.inputMethodQuery(Qt::ImCursorRectangle).toRectF();
    const qreal offset = caret.center().x() - line.cursorToX(caretAt - laidOutFrom);
    const qreal from = line.cursorToX(place);
    const qreal to = line.cursorToX(place + 1); // the same at the end
    const qreal width = std::max(std::abs(to - from), 2 * waveLength);
    return {std::min(from, to) + offset, caret.bottom() - waveHeight, width, waveHeight};
}

void MistakeMark::paintEvent(QPaintEvent *) {
    const QRectF area = markedArea();
    if (area.isEmpty())
        return;
    QPainterPath wave(area.bottomLeft());
    bool up = true;
    for (qreal x = area.left() + waveLength / 2; x <= area.right() + 0.1; x += waveLength / 2, up = !up)
        wave.lineTo(x, up ? area.top() : area.bottom());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(mistakeColour(palette()), 1.5));
    painter.drawPath(wave);
}

} // namespace tolvo
