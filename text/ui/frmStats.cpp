// SPDX-License-Identifier: MIT
#include "text/ui/frmStats.h"

#include "platform/message_box.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tolvo {

namespace {

void addRow(QTreeWidget *list, const QStringList &cells, bool bold) {
    auto *row = new QTreeWidgetItem(cells);
    list->addTopLevelItem(row);
    QFont font = list->font();
    font.setBold(bold);
    for (int column = 0; column < list->columnCount(); ++column) {
        row->setFont(column, font);
        if (column > 0)
            row->setTextAlignment(column, Qt::AlignRight | Qt::AlignVCenter);
    }
}

} // namespace

frmStats::frmStats(MessageBoxes &boxes, const TextStatistics &statistics, QWidget *parent)
    : QDialog(parent), m_list(new QTreeWidget(this)) {
    setObjectName(QStringLiteral("frmStats"));
    setWindowTitle(QStringLiteral("Statistics"));
    m_list->setObjectName(QStringLiteral("lvwStats"));
    m_list->setAccessibleName(QStringLiteral("Statistics"));
    m_list->setHeaderLabels({QString(), QStringLiteral("Full text"), QStringLiteral("Selected")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    fill(statistics);
    fitList();

    auto *close = new QPushButton(QStringLiteral("Close"), this);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    auto *help = new QPushButton(QStringLiteral("Help"), this);
    help->setObjectName(QStringLiteral("cmdHelp"));
    help->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    connect(help, &QPushButton::clicked, this, [&boxes] {
        boxes.show({QStringLiteral("Help is not implemented yet"), BoxIcon::Information});
    });

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(close);
    buttons->addWidget(help);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
    close->setFocus();
}

void frmStats::fill(const TextStatistics &statistics) {
    addRow(m_list, {QString(), QStringLiteral("Full text"), QStringLiteral("Selection")}, true);
    addRow(m_list, {QString(), QString(), QString()}, false);
    for (const StatisticsRow &row : statistics.rows) {
        const QString selection = statistics.hasSelection ? row.selection : QString();
        addRow(m_list, {row.name, row.fullText, selection}, row.bold);
    }
}

void frmStats::fitList() {
    QHeaderView *header = m_list->header();
    header->setStretchLastSection(false);
    header->setSectionsMovable(false);
    header->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(0, QHeaderView::Stretch);
    const QAbstractItemView *view = m_list;
    int width = 2 * m_list->frameWidth() + fontMetrics().averageCharWidth() * 4;
    for (int column = 0; column < m_list->columnCount(); ++column)
        width += qMax(view->sizeHintForColumn(column), header->sectionSizeHint(column));
    m_list->setMinimumWidth(width);
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    const int rows = m_list->topLevelItemCount();
    m_list->setMinimumHeight(m_list->sizeHintForRow(0) * rows + header->sizeHint().height() +
                             2 * m_list->frameWidth());
}

} // namespace tolvo
