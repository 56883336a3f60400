// SPDX-License-Identifier: MIT
#include "shell/ui/hint_strip.h"

#include "shell/ui/ImageButton.h"
#include "shell/ui/row_painting.h"
#include "widgets/ElidedLabel.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <utility>

namespace tolvo {

HintButton::HintButton(QWidget *parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus); // a click leaves the focus with the text
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize HintButton::sizeHint() const {
    const Grid grid(*this);
    return {fontMetrics().horizontalAdvance(text()) + 2 * grid.gap(), grid.target() - grid.smallGap()};
}

void HintButton::changeEvent(QEvent *event) {
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QAbstractButton::changeEvent(event);
}

bool HintButton::event(QEvent *event) {
    const bool handled = QAbstractButton::event(event);
    switch (event->type()) {
    case QEvent::Enter:
    case QEvent::Leave:
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::Hide:
        update();
        if (onPointed)
            onPointed();
        break;
    default:
        break;
    }
    return handled;
}

void HintButton::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool deeper = isDown() || underMouse();
    paintRowGround(painter, QRectF(rect()).adjusted(1, 1, -1, -1), palette(),
                   {.tinted = true, .pressed = deeper, .framed = hasFocus()});
    painter.setPen(accentOn(palette(), QPalette::Window));
    painter.drawText(rect(), Qt::AlignCenter, text());
}

HintStrip::HintStrip(const QString &name, const QString &words, const QString &closeTip, QObject *keys)
    : m_label(new ElidedLabel(name + QStringLiteral("_words"), {})),
      m_close(new ImageButton(QStringLiteral("close"), closeTip)), m_keys(keys) {
    setObjectName(name);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_label->showText(words);
    m_close->setObjectName(name + QStringLiteral("_close"));
    m_close->installEventFilter(keys);
    connect(m_close, &QAbstractButton::clicked, this, [this] {
        if (onClose)
            onClose();
    });
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Grid(*this).gap());
    layout->addWidget(m_label);
    layout->addStretch(1);
    layout->addWidget(m_close);
    hide();
}

HintButton *HintStrip::addButton() {
    auto *button = new HintButton(this);
    const auto place = static_cast<int>(m_buttons.size());
    button->setObjectName(objectName() + QStringLiteral("_%1").arg(place));
    button->installEventFilter(m_keys);
    button->onPointed = [this] { reportPointed(); };
    connect(button, &QAbstractButton::clicked, this, [this, place] {
        if (onClick)
            onClick(place);
    });
    setTabOrder(m_buttons.isEmpty() ? static_cast<QWidget *>(this) : m_buttons.last(), button);
    setTabOrder(button, m_close);
    static_cast<QHBoxLayout *>(layout())->insertWidget(place + 1, button);
    m_buttons += button;
    return button;
}

void HintStrip::setButtons(const QList<Button> &buttons) {
    m_used = buttons.size();
    for (qsizetype i = 0; i < m_used; ++i) {
        HintButton *button = i < m_buttons.size() ? m_buttons[i] : addButton();
        button->setText(buttons[i].words);
        button->setToolTip(buttons[i].explanation);
        button->setAccessibleName(m_label->text() + u' ' + buttons[i].words);
        button->setAccessibleDescription(buttons[i].explanation);
        button->updateGeometry();
        button->update();
    }
    leaveOutWhatDoesNotFit();
    setVisible(m_used > 0);
}

QString HintStrip::sentence() const {
    QStringList words;
    for (const HintButton *button : m_buttons.first(m_used))
        words += button->text();
    return m_label->text() + u' ' + words.join(QStringLiteral(", "));
}

/// The first button stays, as the words give way to it.
void HintStrip::leaveOutWhatDoesNotFit() {
    const int gap = layout()->spacing();
    int room = width() - m_label->sizeHint().width() - m_close->sizeHint().width() - 2 * gap;
    for (qsizetype i = 0; i < m_buttons.size(); ++i) {
        room -= m_buttons[i]->sizeHint().width() + gap;
        m_buttons[i]->setVisible(i < m_used && (i == 0 || room >= 0));
    }
}

void HintStrip::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    leaveOutWhatDoesNotFit();
}

void HintStrip::reportPointed() {
    int pointed = -1;
    for (qsizetype i = 0; i < m_used; ++i) {
        const HintButton *button = m_buttons[i];
        if (button->isVisible() && (button->underMouse() || (pointed < 0 && button->hasFocus())))
            pointed = static_cast<int>(i);
    }
    if (std::exchange(m_pointed, pointed) != pointed && onPointed)
        onPointed(pointed);
}

} // namespace tolvo
