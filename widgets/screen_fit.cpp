// SPDX-License-Identifier: MIT
#include "widgets/screen_fit.h"

#include "widgets/grid.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGroupBox>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolButton>

namespace tolvo {

namespace {

constexpr QSize frameOfWindows{8, 36}; ///< about what a window manager adds, which is not known yet

/// Wants to be as large as what it holds, with the bars beside it, and follows the focus.
class FittedArea final : public QScrollArea {
  public:
    explicit FittedArea(QWidget *parent) : QScrollArea(parent) {
        setObjectName(QStringLiteral("fittedArea"));
        setFocusPolicy(Qt::NoFocus);
        setFrameShape(QFrame::NoFrame);
        setWidgetResizable(true);
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *focused) {
            if (focused != nullptr && widget()->isAncestorOf(focused))
                bringIntoView(*focused);
        });
    }
    [[nodiscard]] QSize sizeHint() const override {
        return widget()->sizeHint().expandedTo(widget()->minimumSizeHint()) + bars();
    }
    [[nodiscard]] QSize minimumSizeHint() const override {
        constexpr int lines = 4;
        const int least = lines * fontMetrics().lineSpacing();
        return QSize(2 * least, least).boundedTo(sizeHint());
    }

  protected:
    /// What it holds shows or hides parts of itself: the window may want another size.
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

  private:
    /// ensureWidgetVisible goes the wrong way in windows that run from right to left.
    void bringIntoView(const QWidget &control) {
        const int gap = Grid(*this).gap();
        const QRect area =
            QRect(control.mapTo(viewport(), QPoint()), control.size()).adjusted(-gap, -gap, gap, gap);
        const QRect view = viewport()->rect();
        const auto away = [](int start, int end, int room) {
            return start < 0 || end - start > room ? start : std::max(0, end - room);
        };
        // Not for a bit of its end: the label before it would go.
        const bool seen = area.left() >= -gap && 2 * area.intersected(view).width() >= area.width();
        const int across = seen ? 0 : away(area.left(), area.right() + 1, view.width());
        const int down = away(area.top(), area.bottom() + 1, view.height());
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() +
                                        (isRightToLeft() ? -across : across));
        verticalScrollBar()->setValue(verticalScrollBar()->value() + down);
    }
    [[nodiscard]] QSize bars() const {
        return {verticalScrollBar()->sizeHint().width(), horizontalScrollBar()->sizeHint().height()};
    }
};

bool isButtons(QLayoutItem &item) {
    if (item.spacerItem() != nullptr)
        return true;
    const QWidget *widget = item.widget();
    if (qobject_cast<const QPushButton *>(widget) || qobject_cast<const QToolButton *>(widget) ||
        qobject_cast<const QDialogButtonBox *>(widget))
        return true;
    const QLayout *layout = widget ? widget->layout() : item.layout();
    if (layout == nullptr || layout->count() == 0 || qobject_cast<const QGroupBox *>(widget))
        return false;
    for (int i = 0; i < layout->count(); ++i) {
        if (!isButtons(*layout->itemAt(i)))
            return false;
    }
    return true;
}

/// Where the buttons of a window stand: the place of an item in a layout, and how that layout runs.
struct ButtonPlace {
    QLayout *layout = nullptr;
    int index = -1;
    QBoxLayout::Direction direction = QBoxLayout::TopToBottom;
};

/// From the end on: the row or column of buttons that ends the window, or a column in it.
ButtonPlace buttonPlace(QLayout &layout) {
    const auto *box = qobject_cast<QBoxLayout *>(&layout);
    for (int i = layout.count() - 1; i >= 0; --i) {
        QLayoutItem &item = *layout.itemAt(i);
        if (item.spacerItem() == nullptr && isButtons(item))
            return {&layout, i, box ? box->direction() : QBoxLayout::TopToBottom};
    }
    for (int i = layout.count() - 1; i >= 0; --i) {
        if (QLayout *inner = layout.itemAt(i)->layout(); qobject_cast<QBoxLayout *>(inner)) {
            if (const ButtonPlace place = buttonPlace(*inner); place.layout != nullptr)
                return place;
        }
    }
    return {};
}

/// The buttons, out of their layout, where they leave room for what scrolls.
QLayoutItem *takeButtons(const ButtonPlace &place, QSize room) {
    if (place.layout == nullptr)
        return nullptr;
    const QSize needed = place.layout->itemAt(place.index)->minimumSize();
    const bool fits = needed.width() <= room.width() && needed.height() <= room.height();
    return fits ? place.layout->takeAt(place.index) : nullptr;
}

void add(QBoxLayout &outer, QLayoutItem *item) {
    if (QLayout *layout = item->layout())
        outer.addLayout(layout);
    else
        outer.addItem(item);
}

QWidget *fittedArea(const QWidget &window) {
    return window.findChild<QWidget *>(QStringLiteral("fittedArea"), Qt::FindDirectChildrenOnly);
}

QSize needed(const QLayout &layout, QSize room) {
    const QSize least = layout.totalMinimumSize();
    if (!layout.hasHeightForWidth())
        return least;
    const int width = std::max(least.width(), room.width());
    return {least.width(), std::max(least.height(), layout.totalMinimumHeightForWidth(width))};
}

/// The size of a window, narrower than it wants to be, with the height that its folded lines need, or wider
/// where the room is too low for them.
QSize sizeForFolds(const QWidget &window, QSize room) {
    const QLayout &layout = *window.layout();
    QSize size = window.size();
    if (!layout.hasHeightForWidth() || window.sizeHint().width() <= size.width())
        return size;
    const auto height = [&] {
        return layout.totalMinimumHeightForWidth(std::min(size.width(), room.width()));
    };
    if (height() > room.height())
        size.setWidth(room.width());
    return size.expandedTo({0, height()});
}

/// Puts all that a window holds, but for its buttons, into an area that scrolls.
void scrollContents(QWidget &window, QSize room) {
    QWidget *const focused = window.focusWidget();
    QLayout *const contents = window.layout();
    const QMargins margins = contents->contentsMargins();
    const int gap = std::max(contents->spacing(), Grid(window).smallGap());
    contents->setSizeConstraint(QLayout::SetDefaultConstraint);
    window.setMinimumSize(0, 0);
    window.setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const ButtonPlace place = buttonPlace(*contents);
    QLayoutItem *const buttons = takeButtons(place, room);

    auto *area = new FittedArea(&window);
    auto *page = new QWidget(&window);
    page->setLayout(contents);
    constexpr int focusRing = 2;
    contents->setContentsMargins(focusRing, focusRing, focusRing, focusRing);
    auto *outer = new QBoxLayout(buttons ? place.direction : QBoxLayout::TopToBottom, &window);
    outer->setContentsMargins(margins);
    outer->setSpacing(gap);
    outer->addWidget(area, 1);
    if (buttons)
        add(*outer, buttons);
    area->setWidget(page);
    page->show();
    area->show();
    if (focused)
        focused->setFocus();
}

bool isOurs(const QWidget &window) {
    const Qt::WindowType type = window.windowType();
    return window.isWindow() && (type == Qt::Window || type == Qt::Dialog) && window.layout() != nullptr &&
           qobject_cast<const QMessageBox *>(&window) == nullptr;
}

} // namespace

QSize roomOnScreen(const QWidget &window) {
    return window.screen()->availableSize() - frameOfWindows;
}

void activateLayout(QWidget &window) {
    if (QWidget *area = fittedArea(window))
        area->updateGeometry();
    window.layout()->activate();
}

ScreenFit::ScreenFit(QObject *parent, QSize room) : QObject(parent), m_room(room) {
    qApp->installEventFilter(this);
}

bool ScreenFit::eventFilter(QObject *watched, QEvent *event) {
    const QEvent::Type type = event->type();
    if ((type == QEvent::Show || type == QEvent::LayoutRequest || type == QEvent::Resize) &&
        watched->isWidgetType() && !event->spontaneous()) {
        auto &window = *static_cast<QWidget *>(watched);
        if (isOurs(window) && (type == QEvent::Show || window.isVisible()))
            fit(window);
    }
    return false;
}

void ScreenFit::fit(QWidget &window) const {
    if (window.isMaximized() || window.isFullScreen())
        return;
    const QSize room = m_room.isValid() ? m_room - frameOfWindows : roomOnScreen(window);
    const QSize least = needed(*window.layout(), room);
    if (fittedArea(window) == nullptr && (least.width() > room.width() || least.height() > room.height())) {
        const QSize wanted = window.size().expandedTo(least);
        scrollContents(window, room);
        window.resize(wanted.expandedTo(window.sizeHint()));
    }
    const QSize fitted = sizeForFolds(window, room).boundedTo(room);
    if (fitted != window.size())
        window.resize(fitted);
}

} // namespace tolvo
