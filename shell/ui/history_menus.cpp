// SPDX-License-Identifier: MIT
#include "shell/ui/history_menus.h"

#include "shell/frmMain.h"
#include "widgets/contrast.h"
#include "widgets/grid.h"
#include "widgets/themed_icon.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace tolvo {

namespace {

constexpr qsizetype mostEntries = 20;

/// A name as the caption of an action, which must not mark a key.
QString caption(QString name) {
    constexpr qsizetype longest = 60;
    name = name.simplified();
    if (name.size() > longest)
        name = name.first(longest) + QStringLiteral("...");
    return name.replace(QLatin1StringView("&"), QLatin1StringView("&&"));
}

} // namespace

HistoryArrow::HistoryArrow(QPushButton &neighbour, const char *name, const QString &tip)
    : QToolButton(&neighbour) {
    setObjectName(QLatin1StringView(name));
    setToolTip(tip);
    setAccessibleName(tip);
    setFocusPolicy(Qt::TabFocus);
    setAutoRaise(true);
    setPopupMode(QToolButton::InstantPopup);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setEnabled(neighbour.isEnabled());
    neighbour.installEventFilter(this);
}

QSize HistoryArrow::sizeHint() const {
    return {Grid(*this).icon(), Grid(*this).target()};
}

QSize HistoryArrow::minimumSizeHint() const {
    return {2 * Grid(*this).smallGap() + 2, Grid(*this).target()};
}

bool HistoryArrow::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::EnabledChange)
        setEnabled(static_cast<QWidget *>(watched)->isEnabled());
    if (event->type() == QEvent::ContextMenu && isEnabled()) {
        showMenu();
        return true;
    }
    return QToolButton::eventFilter(watched, event);
}

void HistoryArrow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool chosen = underMouse() || hasFocus() || isDown();
    if (chosen && isEnabled()) {
        painter.setPen(QPen(accent(palette()), hasFocus() ? 2 : 1));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
    }
    const qreal half = std::min(4.0, width() / 4.0);
    const QPointF tip = QRectF(rect()).center() + QPointF(0, half / 2);
    painter.setPen(
        QPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText), 1.6,
             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({tip - QPointF(half, half), tip, tip + QPointF(half, -half)}));
}

HistoryMenus::HistoryMenus(frmMain &session, HistoryArrow &undo, HistoryArrow &redo, QObject *parent)
    : QObject(parent), m_session(session) {
    undo.setMenu(makeMenu(undo, &HistoryMenus::fillUndo));
    redo.setMenu(makeMenu(redo, &HistoryMenus::fillRedo));
}

QMenu *HistoryMenus::makeMenu(HistoryArrow &arrow, void (HistoryMenus::*fill)(QMenu &)) {
    auto *menu = new QMenu(&arrow);
    menu->setObjectName(arrow.objectName() + QStringLiteral("_menu"));
    connect(menu, &QMenu::aboutToShow, this, [this, menu, fill] {
        menu->clear();
        (this->*fill)(*menu);
    });
    return menu;
}

void HistoryMenus::fillUndo(QMenu &menu) {
    auto *whole = menu.addAction(QStringLiteral("Before the &last PowerButton\tCtrl+Alt+Z"), this,
                                 [this] { m_session.undoPowerButton(); });
    whole->setEnabled(m_session.history().hasPowerButton());
    menu.addSeparator();
    addEntries(menu, m_session.historyBehind());
}

void HistoryMenus::fillRedo(QMenu &menu) {
    addEntries(menu, m_session.historyAhead());
}

void HistoryMenus::addEntries(QMenu &menu, const QList<TextHistory::Entry> &entries) {
    for (const auto &[name, place] : entries.first(std::min(mostEntries, entries.size())))
        menu.addAction(caption(name), this, [this, place = place] { m_session.goInHistory(place); });
    if (entries.isEmpty())
        menu.addAction(QStringLiteral("Nothing"))->setEnabled(false);
}

} // namespace tolvo
