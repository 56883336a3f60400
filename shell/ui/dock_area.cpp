// SPDX-License-Identifier: MIT
#include "shell/ui/dock_area.h"

#include "shell/ui/ImageButton.h"
#include "shell/ui/keys_of_part.h"
#include "widgets/ElidedLabel.h"
#include "widgets/grid.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

namespace tolvo {

DockArea::DockArea(const QString &name, std::function<void()> focusText)
    : m_focusText(std::move(focusText)), m_title(new ElidedLabel(name + QStringLiteral("_title"), {})),
      m_page(new QWidget), m_area(new QScrollArea) {
    setObjectName(name);
    auto *page = new QVBoxLayout(m_page);
    page->setContentsMargins(0, 0, 0, 0);
    m_page->installEventFilter(this);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setFocusPolicy(Qt::NoFocus);
    m_area->setWidgetResizable(true);
    m_area->setWidget(m_page);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(titleRow());
    layout->addWidget(m_area, 1);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *focused) {
        if (focused && m_page->isAncestorOf(focused))
            m_area->ensureWidgetVisible(focused);
    });
    hide();
}

DockArea::~DockArea() = default;

QWidget *DockArea::titleRow() {
    auto *row = new QWidget;
    auto *close = new ImageButton(QStringLiteral("close"), QStringLiteral("Close (Esc)"));
    close->setObjectName(objectName() + QStringLiteral("_close"));
    close->setFocusPolicy(Qt::NoFocus);
    connect(close, &QAbstractButton::clicked, this, [this] {
        if (m_held)
            m_held->reject();
    });
    auto *layout = new QHBoxLayout(row);
    // In line with what stands below.
    layout->setContentsMargins(style()->pixelMetric(QStyle::PM_LayoutLeftMargin), 0, 0, 0);
    layout->setSpacing(Grid(*this).gap());
    QFont bold = m_title->font();
    bold.setBold(true);
    m_title->setFont(bold);
    layout->addWidget(m_title, 1);
    layout->addWidget(close);
    return row;
}

void DockArea::take(QDialog &window) {
    if (m_held == &window)
        return;
    m_held = &window;
    window.setParent(m_page, Qt::SubWindow); // Qt keeps Tab and the letters of such a part in it
    window.installEventFilter(this);
    m_page->layout()->addWidget(&window);
    m_title->showText(window.windowTitle());
    m_title->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_title->addActions(window.actions());
    m_keys = std::make_unique<KeysOfPart>(*this->window(), window);
}

void DockArea::release(QWidget &parent) {
    if (!m_held)
        return;
    m_keys.reset();
    for (QAction *action : m_held->actions())
        m_title->removeAction(action);
    m_held->removeEventFilter(this);
    m_page->layout()->removeWidget(m_held);
    m_held->setParent(&parent, Qt::Dialog);
    m_held.clear();
    hide();
}

bool DockArea::hasFocusInside() const {
    const QWidget *focused = window()->focusWidget();
    return isVisible() && focused != nullptr && isAncestorOf(focused);
}

QSize DockArea::sizeHint() const {
    const QSize title = layout()->itemAt(0)->sizeHint();
    const QSize page = m_page->layout()->sizeHint();
    return {std::max(title.width(), page.width()), title.height() + page.height()};
}

void DockArea::showEvent(QShowEvent *event) {
    QWidget::showEvent(event);
    // After the window has been laid out anew.
    QTimer::singleShot(0, this, [this] {
        if (onShown)
            onShown();
    });
}

bool DockArea::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_page && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    if (watched != m_held)
        return false;
    switch (event->type()) {
    case QEvent::ShowToParent:
        show();
        break;
    case QEvent::HideToParent:
        if (hasFocusInside())
            m_focusText();
        hide();
        break;
    case QEvent::WindowTitleChange:
        m_title->showText(m_held->windowTitle());
        break;
    default:
        break;
    }
    return false;
}

} // namespace tolvo
