// SPDX-License-Identifier: MIT
#include "shell/ui/status_bar.h"

#include "shell/zoom_levels.h"
#include "widgets/ElidedLabel.h"
#include "widgets/announce.h"
#include "widgets/themed_icon.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace tolvo {

namespace {

QFrame *thinLine(QFrame::Shape shape) {
    auto *line = new QFrame;
    line->setFrameShape(shape);
    line->setFrameShadow(QFrame::Plain);
    line->setForegroundRole(QPalette::Mid);
    return line;
}

/// A colour between two: all of the first at 1, all of the second at 0.
QColor mixed(const QColor &first, const QColor &second, float share) {
    const auto mix = [share](float a, float b) { return a * share + b * (1 - share); };
    return QColor::fromRgbF(mix(first.redF(), second.redF()), mix(first.greenF(), second.greenF()),
                            mix(first.blueF(), second.blueF()));
}

} // namespace

QColor fillColor(Fill fill, const QPalette &palette) {
    const bool dark = isDark(palette);
    switch (fill) {
    case Fill::Roomy:
        break;
    case Fill::Near:
        return dark ? QColor(255, 193, 94) : QColor(133, 77, 0);
    case Fill::Full:
        return dark ? QColor(255, 150, 140) : QColor(176, 0, 32);
    }
    constexpr float quiet = 0.7F;
    return mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window), quiet);
}

StatusBar::StatusBar(QWidget *corner)
    : m_labStatus(new ElidedLabel(QStringLiteral("labStatus"), QStringLiteral("Status"))),
      m_labHint(new ElidedLabel(QStringLiteral("labHint"), QStringLiteral("Hint"))),
      m_cmdZoom(button("cmdZoom", QStringLiteral("Size of the text; click for its normal size (Ctrl-0)"),
                       &StatusBar::onOwnSize)),
      m_labSelected(label("labSelected")),
      m_cmdPlace(button("cmdPlace",
                        QStringLiteral("Line and column of the caret; click to go to a line (Ctrl-G)"),
                        &StatusBar::onGoToLine)),
      m_labLength(label("labLength")), m_labLineEnds(label("labLineEnds")) {
    setObjectName(QStringLiteral("statusBar"));
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(m_labStatus);
    // The hint takes what the status and the facts leave, and gives way before them.
    constexpr int allThereIs = 1000;
    m_labHint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_labHint, allThereIs);
    row->addStretch(1);
    m_zoomPart = addPart(*row, m_cmdZoom);
    m_selectedPart = addPart(*row, m_labSelected);
    addPart(*row, m_cmdPlace);
    addPart(*row, m_labLength);
    addPart(*row, m_labLineEnds);
    row->addWidget(corner, 0, Qt::AlignBottom);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(thinLine(QFrame::HLine));
    layout->addLayout(row);
    m_labHint->hide();
    showFacts({});
    showLineEnds(true);
    showZoom(ownSize);
}

QLabel *StatusBar::label(const char *name) {
    auto *result = new QLabel;
    result->setObjectName(QLatin1StringView(name));
    result->setTextFormat(Qt::PlainText);
    return result;
}

QToolButton *StatusBar::button(const char *name, const QString &tip,
                               std::function<void()> StatusBar::*clicked) {
    auto *result = new QToolButton;
    result->setObjectName(QLatin1StringView(name));
    result->setAutoRaise(true);
    result->setFocusPolicy(Qt::TabFocus);
    result->setToolTip(tip);
    connect(result, &QToolButton::clicked, this, [this, clicked] {
        if (this->*clicked)
            (this->*clicked)();
    });
    return result;
}

QWidget *StatusBar::addPart(QHBoxLayout &layout, QWidget *content) {
    auto *part = new QWidget;
    auto *parts = new QHBoxLayout(part);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->setSpacing(8);
    parts->addWidget(thinLine(QFrame::VLine));
    parts->addWidget(content);
    layout.addWidget(part);
    return part;
}

void StatusBar::showStatus(const QString &text) {
    m_labStatus->showText(text);
    if (text.isEmpty())
        showHint({});
    announce(m_labStatus, text);
}

void StatusBar::showHint(const QString &text) {
    m_labHint->showText(text);
    m_labHint->setVisible(!text.isEmpty());
    announce(m_labHint, text);
}

void StatusBar::showFacts(const TextFacts &facts) {
    if (m_facts == facts)
        return;
    const bool otherFill = !m_facts || fillOf(*m_facts) != fillOf(facts);
    m_facts = facts;
    m_labSelected->setText(selectionText(facts));
    m_selectedPart->setVisible(facts.selected > 0);
    m_cmdPlace->setText(placeText(facts));
    m_labLength->setText(lengthText(facts));
    m_labLength->setToolTip(lengthTip(facts));
    if (otherFill)
        dress();
}

void StatusBar::showLineEnds(bool lineFeeds) {
    m_labLineEnds->setText(lineFeeds ? QStringLiteral("LF") : QStringLiteral("CR LF"));
    m_labLineEnds->setToolTip(
        lineFeeds ? QStringLiteral("Lines will end in LF on the clipboard: its text held no CR")
                  : QStringLiteral("Lines will end in CR LF on the clipboard: its text held a CR"));
}

void StatusBar::showZoom(int percent) {
    m_cmdZoom->setText(QStringLiteral("%1 %").arg(percent));
    m_zoomPart->setVisible(percent != ownSize);
}

void StatusBar::changeEvent(QEvent *event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        dress();
}

/// Colours for the palette, and bold for a length that is near its limit.
void StatusBar::dress() {
    const auto paint = [this](QWidget *part, Fill fill) {
        QPalette colours = part->palette();
        const QColor color = fillColor(fill, palette());
        colours.setColor(QPalette::WindowText, color);
        colours.setColor(QPalette::ButtonText, color);
        part->setPalette(colours);
    };
    for (QWidget *part : {static_cast<QWidget *>(m_labHint), static_cast<QWidget *>(m_cmdZoom),
                          static_cast<QWidget *>(m_labSelected), static_cast<QWidget *>(m_cmdPlace),
                          static_cast<QWidget *>(m_labLineEnds)})
        paint(part, Fill::Roomy);
    const Fill fill = fillOf(*m_facts);
    paint(m_labLength, fill);
    QFont font = m_labLength->font();
    font.setBold(fill != Fill::Roomy);
    m_labLength->setFont(font);
}

} // namespace tolvo
