// SPDX-License-Identifier: MIT
#include "powerbuttons/ui/step_list.h"

#include "platform/desktop/plain_tool_tip.h"

#include <QApplication>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <algorithm>
#include <array>

namespace tolvo {

namespace {

struct CommandRow {
    StepCommand command;
    const char *caption;
    QKeyCombination key;
};

constexpr std::array commands = {
    CommandRow{StepCommand::MoveUp, "Move &up", Qt::CTRL | Qt::Key_Up},
    CommandRow{StepCommand::MoveDown, "Move d&own", Qt::CTRL | Qt::Key_Down},
    CommandRow{StepCommand::Duplicate, "&Double", Qt::CTRL | Qt::Key_D},
    CommandRow{StepCommand::Cut, "Cu&t", Qt::CTRL | Qt::Key_X},
    CommandRow{StepCommand::Copy, "&Copy", Qt::CTRL | Qt::Key_C},
    CommandRow{StepCommand::Paste, "&Paste", Qt::CTRL | Qt::Key_V},
    CommandRow{StepCommand::Remove, "De&lete", QKeyCombination(Qt::Key_Delete)},
    CommandRow{StepCommand::Undo, "Undo", Qt::CTRL | Qt::Key_Z},
    CommandRow{StepCommand::Redo, "Redo", Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
};

} // namespace

StepList::StepList(QWidget *parent) : QListWidget(parent) {
    setObjectName(QStringLiteral("lstActions"));
    setAccessibleName(QStringLiteral("Steps"));
    setAccessibleDescription(
        QStringLiteral("Space switches a step off or on, Ctrl-Up and Ctrl-Down move it, Delete removes it"));
    setDragDropMode(InternalMove);
    setDropIndicatorShown(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // A box that a choice brings up must not open while the mouse is down.
    connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
        if (!m_filling && row >= 0 && QApplication::mouseButtons() == Qt::NoButton)
            emit chosen(row + 1);
    });
    connect(this, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { emit chosen(row(item) + 1); });
    connect(this, &QListWidget::itemChanged, this, [this](QListWidgetItem *item) {
        if (!m_filling)
            emit ticked(row(item) + 1, item->checkState() == Qt::Unchecked);
    });
}

void StepList::showSteps(const QList<Step> &steps, int current) {
    const QScopedValueRollback filling(m_filling, true);
    while (count() > steps.size())
        delete takeItem(count() - 1);
    while (count() < steps.size())
        addItem(new QListWidgetItem);
    for (int row = 0; row < count(); ++row) {
        const Step &step = steps.at(row);
        QListWidgetItem &shown = *item(row);
        shown.setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable |
                       Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren);
        shown.setText(step.line);
        shown.setToolTip(plainToolTip(step.line));
        shown.setCheckState(step.off ? Qt::Unchecked : Qt::Checked);
        QFont font = shown.font();
        font.setStrikeOut(step.off);
        shown.setFont(font);
    }
    m_shown = current - 1;
    setCurrentRow(m_shown);
    scrollToItem(currentItem());
}

QSize StepList::minimumSizeHint() const {
    return {fontMetrics().averageCharWidth() * 24, fontMetrics().lineSpacing() * 6};
}

QSize StepList::sizeHint() const {
    return {fontMetrics().averageCharWidth() * 36, minimumSizeHint().height()};
}

void StepList::keyPressEvent(QKeyEvent *event) {
    const auto row = std::ranges::find_if(
        commands, [&](const CommandRow &candidate) { return candidate.key == event->keyCombination(); });
    const bool isOurs = row != commands.end() && row->command != StepCommand::Undo &&
                        row->command != StepCommand::Redo; // those are keys of the window
    if (isOurs)
        emit asked(row->command);
    else
        QListWidget::keyPressEvent(event);
}

/// A row that a press has made the current one, without a click or a drop to follow.
void StepList::settle() {
    if (currentRow() >= 0 && currentRow() != m_shown)
        emit chosen(currentRow() + 1);
}

void StepList::mouseReleaseEvent(QMouseEvent *event) {
    QListWidget::mouseReleaseEvent(event);
    settle();
}

void StepList::startDrag(Qt::DropActions actions) {
    m_dropped = false;
    QListWidget::startDrag(actions);
    if (!m_dropped)
        settle();
}

int StepList::rowOfDrop(const QDropEvent &event) const {
    const QModelIndex at = indexAt(event.position().toPoint());
    if (!at.isValid())
        return count();
    const QRect area = visualRect(at);
    return at.row() + (event.position().y() > area.center().y() ? 1 : 0);
}

void StepList::dropEvent(QDropEvent *event) {
    if (event->source() != this)
        return;
    const int from = currentRow();
    const int before = rowOfDrop(*event);
    event->setDropAction(Qt::CopyAction); // else the list takes the dragged row out itself
    event->accept();
    m_dropped = true;
    setState(NoState);
    const int to = before > from ? before - 1 : before;
    QMetaObject::invokeMethod(
        this, [this, from, to] { emit dragged(from + 1, to + 1); }, Qt::QueuedConnection);
}

void StepList::contextMenuEvent(QContextMenuEvent *event) {
    QMenu menu;
    for (const CommandRow &row : commands)
        menu.addAction(QLatin1StringView(row.caption), QKeySequence(row.key), this,
                       [this, &row] { emit asked(row.command); });
    menu.exec(event->reason() == QContextMenuEvent::Keyboard && currentItem() != nullptr
                  ? viewport()->mapToGlobal(visualItemRect(currentItem()).center())
                  : event->globalPos());
}

} // namespace tolvo
