// SPDX-License-Identifier: MIT
#include "shell/ui/KeySheetWindow.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tolvo {

KeySheetWindow::KeySheetWindow(QList<KeySheetRow> sheet, QWidget *parent)
    : QDialog(parent), m_sheet(std::move(sheet)), m_filter(new QLineEdit(this)),
      m_list(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("keySheet"));
    setWindowTitle(QStringLiteral("Keyboard shortcuts"));
    m_filter->setObjectName(QStringLiteral("keyFilter"));
    m_filter->setAccessibleName(QStringLiteral("Filter the list of keys"));
    m_filter->setPlaceholderText(QStringLiteral("Filter by key or command"));
    m_filter->setClearButtonEnabled(true);
    m_filter->installEventFilter(this);
    connect(m_filter, &QLineEdit::textChanged, this, &KeySheetWindow::fill);

    m_list->setObjectName(QStringLiteral("keyList"));
    m_list->setAccessibleName(QStringLiteral("Keys"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({QStringLiteral("Command"), QStringLiteral("Keys")});
    m_list->setRootIsDecorated(false);
    m_list->setItemsExpandable(false);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionsMovable(false);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->button(QDialogButtonBox::Close)->setAutoDefault(false); // Enter in the field closes nothing
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_filter);
    layout->addWidget(m_list, 1);
    layout->addWidget(buttons);
    fill({});
    fitToScreen();
}

void KeySheetWindow::fill(const QString &filter) {
    m_list->clear();
    QTreeWidgetItem *group = nullptr;
    QString title;
    for (const KeySheetRow &row : filtered(m_sheet, filter)) {
        if (group == nullptr || groupTitle(row.group) != title) {
            title = groupTitle(row.group);
            group = new QTreeWidgetItem(m_list, {title});
            QFont bold = m_list->font();
            bold.setBold(true);
            group->setFont(0, bold);
            group->setFlags(Qt::ItemIsEnabled);
        }
        new QTreeWidgetItem(group, {row.does, row.keys});
    }
    m_list->expandAll();
}

/// As wide as its rows and as high as all of them, as far as the screen has room.
void KeySheetWindow::fitToScreen() {
    const int row = m_list->visualItemRect(m_list->topLevelItem(0)).height();
    int rows = 1;
    for (int i = 0; i < m_list->topLevelItemCount(); ++i)
        rows += 1 + m_list->topLevelItem(i)->childCount();
    const QAbstractItemView &list = *m_list;
    const int line = fontMetrics().height();
    const QSize wanted(list.sizeHintForColumn(0) + list.sizeHintForColumn(1) +
                           list.verticalScrollBar()->sizeHint().width() + 4 * line,
                       rows * row + 8 * line);
    resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

/// Up and Down leave the field for the list.
bool KeySheetWindow::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_filter && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if ((key == Qt::Key_Down || key == Qt::Key_Up) && m_list->topLevelItemCount() > 0) {
            if (m_list->currentItem() == nullptr || m_list->currentItem()->parent() == nullptr)
                m_list->setCurrentItem(m_list->topLevelItem(0)->child(0));
            m_list->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace tolvo
