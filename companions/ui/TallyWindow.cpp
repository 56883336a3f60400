// SPDX-License-Identifier: MIT
#include "companions/ui/TallyWindow.h"

#include "base/application.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "companions/ui/BarChart.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <algorithm>

namespace tolvo {

namespace {

enum Column { NameColumn, PeriodColumn, TotalColumn };
constexpr int mostBars = 20;

/// A count that sorts as a number and shows its groups of three digits.
class CountItem final : public QTableWidgetItem {
  public:
    explicit CountItem(double count)
        : QTableWidgetItem(groupedNumber(static_cast<qint64>(count))), m_count(count) {
        setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    bool operator<(const QTableWidgetItem &other) const override {
        return m_count < static_cast<const CountItem &>(other).m_count;
    }

  private:
    double m_count;
};

QString headline(const UsagePeriod &period) {
    const auto starts = static_cast<qint64>(period.starts);
    const QString times =
        starts == 1 ? QStringLiteral("once") : QStringLiteral("%1 times").arg(groupedNumber(starts));
    try {
        return QStringLiteral("%1 was started %2 since %3.")
            .arg(applicationTitle(), times,
                 QLocale().toString(toDate(period.since).date(), QLocale::LongFormat));
    } catch (const Failure &) { // no date yet, or none that can be read
        return QStringLiteral("%1 was started %2.").arg(applicationTitle(), times);
    }
}

} // namespace

TallyWindow::TallyWindow(const SettingsStore &store, std::function<QString(const QString &)> nameOf,
                         QWidget *parent)
    : QDialog(parent), m_store(store), m_nameOf(std::move(nameOf)), m_head(new QLabel),
      m_span(new QComboBox) {
    setObjectName(QStringLiteral("frmTally"));
    setWindowTitle(applicationTitle() + QStringLiteral(" statistics"));
    setWindowFlag(Qt::WindowMaximizeButtonHint);

    m_head->setObjectName(QStringLiteral("labSince"));
    m_head->setWordWrap(true);
    m_span->setObjectName(QStringLiteral("cmbSpan"));
    m_span->addItems({QStringLiteral("This period"), QStringLiteral("All time")});
    m_span->setCurrentIndex(1);
    connect(m_span, &QComboBox::currentIndexChanged, this, &TallyWindow::showBars);
    auto *const spanLabel = new QLabel(QStringLiteral("&Bars:"));
    spanLabel->setBuddy(m_span);
    auto *const top = new QHBoxLayout;
    top->addWidget(m_head, 1);
    top->addWidget(spanLabel);
    top->addWidget(m_span);

    auto *const tabs = new QTabWidget;
    tabs->setObjectName(QStringLiteral("SSTab1"));
    tabs->addTab(makePage(false, QStringLiteral("Tools")), QStringLiteral("&Tools"));
    tabs->addTab(makePage(true, QStringLiteral("PowerButtons")), QStringLiteral("From &PowerButtons"));

    auto *const close = new QPushButton(QStringLiteral("&Close"));
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    auto *const bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(close);

    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addWidget(tabs, 1);
    layout->addLayout(bottom);
    showCounts();
    resize(fontMetrics().averageCharWidth() * 140, fontMetrics().height() * 32);
}

void TallyWindow::comeBack() {
    showCounts();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void TallyWindow::showCounts() {
    m_head->setText(headline(usagePeriod(m_store)));
    for (Page &page : m_pages) {
        page.counts = toolCounts(m_store, page.fromPowerButtons);
        fillTable(*page.table, page.counts);
    }
    showBars();
}

QWidget *TallyWindow::makePage(bool fromPowerButtons, const QString &name) {
    auto *const table = new QTableWidget;
    table->setObjectName(QStringLiteral("lvw") + name);
    table->setAccessibleName(QStringLiteral("Counts"));
    shapeTable(*table);

    auto *const chart = new BarChart;
    chart->setObjectName(QStringLiteral("pic") + name);
    auto *const scroll = new QScrollArea;
    scroll->setWidget(chart);
    scroll->setWidgetResizable(true);
    scroll->setBackgroundRole(QPalette::Base);
    scroll->setFocusPolicy(Qt::NoFocus);

    auto *const splitter = new QSplitter;
    splitter->addWidget(table);
    splitter->addWidget(scroll);
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);
    splitter->setSizes({1, 1});
    m_pages += Page{fromPowerButtons, {}, table, chart};
    return splitter;
}

void TallyWindow::fillTable(QTableWidget &table, const QList<ToolCount> &counts) const {
    table.setSortingEnabled(false); // a row would move while it is filled
    table.setRowCount(static_cast<int>(counts.size()));
    for (int row = 0; row < table.rowCount(); ++row) {
        const ToolCount &count = counts.at(row);
        table.setItem(row, NameColumn, new QTableWidgetItem(m_nameOf(count.token)));
        table.setItem(row, PeriodColumn, new CountItem(count.period));
        table.setItem(row, TotalColumn, new CountItem(count.total));
    }
    table.setSortingEnabled(true);
}

void TallyWindow::shapeTable(QTableWidget &table) const {
    table.setColumnCount(3);
    table.setHorizontalHeaderLabels(
        {QStringLiteral("Tool"), QStringLiteral("This period"), QStringLiteral("All time")});
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setAlternatingRowColors(true);
    table.setShowGrid(false);
    table.setWordWrap(false);
    table.verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 4);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    QHeaderView *const header = table.horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    for (const int column : {PeriodColumn, TotalColumn}) {
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
        table.horizontalHeaderItem(column)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    table.horizontalHeaderItem(NameColumn)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.setSortingEnabled(true);
    table.sortByColumn(TotalColumn, Qt::DescendingOrder);
}

/// The most used tools of the chosen span, most used first.
void TallyWindow::showBars() {
    const bool allTime = m_span->currentIndex() == 1;
    for (const Page &page : std::as_const(m_pages)) {
        QList<BarChart::Bar> bars;
        for (const ToolCount &count : page.counts) {
            const double value = allTime ? count.total : count.period;
            if (value > 0)
                bars += BarChart::Bar{m_nameOf(count.token), value};
        }
        std::stable_sort(bars.begin(), bars.end(),
                         [](const auto &a, const auto &b) { return a.value > b.value; });
        page.chart->setBars(bars.first(qMin(bars.size(), qsizetype{mostBars})));
    }
}

} // namespace tolvo
