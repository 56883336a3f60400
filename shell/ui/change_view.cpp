// SPDX-License-Identifier: MIT
#include "shell/ui/change_view.h"

#include "shell/changed_places.h"
#include "shell/tool_change.h"
#include "widgets/motion.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>

namespace tolvo {

namespace {

QList<Stretch> changedStretches(const QString &before, const QString &after) {
    const QList<ChangedPlace> places = changedPlaces(before, after);
    QList<Stretch> stretches;
    stretches.reserve(places.size());
    for (const ChangedPlace &place : places)
        stretches += {static_cast<int>(place.start), static_cast<int>(place.length)};
    return stretches;
}

} // namespace

ChangeView::ChangeView(std::array<PlainTextBox *, 2> boxes, QObject *parent)
    : QObject(parent), m_boxes(boxes) {
    m_tintEnds.setSingleShot(true);
    connect(&m_tintEnds, &QTimer::timeout, this, &ChangeView::fadePlaces);
    for (PlainTextBox *box : m_boxes) {
        box->installEventFilter(this);
        box->viewport()->installEventFilter(this);
        connect(box, &QPlainTextEdit::textChanged, this, &ChangeView::endPlaces);
    }
}

qsizetype ChangeView::showPlaces(const ToolChange &change) {
    PlainTextBox &box = *m_boxes.at(shown());
    const QList<Stretch> places = changedStretches(change.before.text, box.Text());
    box.setTint(TintLayer::Changes, places);
    m_faded = 0;
    box.fadeTint(TintLayer::Changes, 1);
    m_tintEnds.start(tintTime);
    return places.size();
}

void ChangeView::showInstead(const TextState &state, const QString &title) {
    endPlaces();
    TextOverlay &shownInstead = overlay();
    shownInstead.setTint({});
    shownInstead.showText(state, title);
    shownInstead.setTint(changedStretches(m_boxes.at(shown())->Text(), state.text));
}

void ChangeView::endInstead() {
    for (TextOverlay *overlay : m_overlays) {
        if (overlay == nullptr)
            continue;
        overlay->setTint({});
        overlay->hide();
    }
}

void ChangeView::endPlaces() {
    m_tintEnds.stop();
    for (PlainTextBox *box : m_boxes)
        box->setTint(TintLayer::Changes, {});
}

void ChangeView::fadePlaces() {
    constexpr int steps = 4;
    constexpr int timeOfStep = 70; // milliseconds
    PlainTextBox &box = *m_boxes.at(shown());
    if (++m_faded == steps || !wantsMotion(box))
        return endPlaces();
    box.fadeTint(TintLayer::Changes, 1 - static_cast<float>(m_faded) / steps);
    m_tintEnds.start(timeOfStep);
}

TextOverlay &ChangeView::overlay() {
    const std::size_t index = shown();
    if (m_overlays.at(index) == nullptr)
        m_overlays.at(index) = new TextOverlay(
            *m_boxes.at(index), index == 1 ? PlainTextBox::Lines::Wrapped : PlainTextBox::Lines::AsTheyAre);
    return *m_overlays.at(index);
}

bool ChangeView::beginTextBefore(const ToolChange *change) {
    if (m_held)
        return false; // the key repeats itself
    m_held = true;
    endPlaces();
    if (change != nullptr)
        overlay().showText(change->before, QStringLiteral("Text before ") + change->name);
    qApp->installEventFilter(this);
    return true;
}

void ChangeView::endTextBefore() {
    qApp->removeEventFilter(this);
    m_held = false;
    endInstead();
}

bool ChangeView::endsTextBefore(const QEvent &event) const {
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
        // What repeats itself is the key that is held.
        return !static_cast<const QKeyEvent &>(event).isAutoRepeat();
    case QEvent::MouseButtonPress:
    case QEvent::FocusOut:
    case QEvent::WindowDeactivate:
        return true;
    default:
        return false;
    }
}

bool ChangeView::eventFilter(QObject *watched, QEvent *event) {
    if (m_held && endsTextBefore(*event))
        endTextBefore();
    const bool goesOn = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress;
    if (goesOn && m_tintEnds.isActive())
        endPlaces();
    return QObject::eventFilter(watched, event);
}

} // namespace tolvo
