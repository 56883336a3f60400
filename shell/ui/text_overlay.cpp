// SPDX-License-Identifier: MIT
#include "shell/ui/text_overlay.h"

#include "widgets/announce.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QEvent>
#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace tolvo {

TextOverlay::TextOverlay(PlainTextBox &box, PlainTextBox::Lines lines)
    : QWidget(&box), m_box(box), m_text(new PlainTextBox(lines)), m_title(new QLabel) {
    setObjectName(QStringLiteral("textOverlay"));
    hide();
    m_text->setObjectName(QStringLiteral("txtOverlay"));
    m_text->setReadOnly(true);
    m_text->setFocusPolicy(Qt::NoFocus);
    m_text->setFrameShape(QFrame::NoFrame);
    m_title->setObjectName(QStringLiteral("labOverlay"));
    m_title->setTextFormat(Qt::PlainText);
    m_title->setAutoFillBackground(true);
    m_title->setBackgroundRole(QPalette::ToolTipBase);
    m_title->setForegroundRole(QPalette::ToolTipText);
    const Grid grid(*this);
    m_title->setContentsMargins(grid.gap(), grid.smallGap(), grid.gap(), grid.smallGap());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_title); // below: every line stays where the box has it
    m_box.installEventFilter(this);
}

void TextOverlay::showText(const TextState &state, const QString &title) {
    const bool first = isHidden();
    if (first) {
        m_text->setCapacity(m_box.capacity());
        m_text->lookLike(m_box);
        place();
        show();
        raise();
    }
    const int down = (first ? m_box : *m_text).verticalScrollBar()->value();
    const int right = (first ? m_box : *m_text).horizontalScrollBar()->value();
    restore(*m_text, state);
    m_text->verticalScrollBar()->setValue(down);
    m_text->horizontalScrollBar()->setValue(right);
    if (m_title->text() == title && !first)
        return;
    m_title->setText(title);
    m_text->setAccessibleName(title);
    announce(m_title, title);
}

/// Inside the frame of the box.
void TextOverlay::place() {
    const int frame = m_box.frameWidth();
    setGeometry(m_box.rect().adjusted(frame, frame, -frame, -frame));
}

/// What the overlay has no use for at its ends would scroll the box below.
void TextOverlay::wheelEvent(QWheelEvent *event) {
    event->accept();
}

bool TextOverlay::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Resize && isVisible())
        place();
    return QWidget::eventFilter(watched, event);
}

} // namespace tolvo
