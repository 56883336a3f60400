// SPDX-License-Identifier: MIT
#pragma once

#include "companions/usage_counters.h"

#include <QDialog>
#include <functional>

class QComboBox;
class QLabel;
class QTableWidget;

namespace tolvo {

class BarChart;

/// The window of Tally.exe: what was counted, as a table that can be sorted by any column and as bars; tools
/// and PowerButtons on two tabs.
class TallyWindow final : public QDialog {
    Q_OBJECT

  public:
    /// `nameOf` gives a tool's name for its token.
    TallyWindow(const SettingsStore &store, std::function<QString(const QString &)> nameOf,
                QWidget *parent = nullptr);

    /// Shows the present counts, in front of all other windows.
    void comeBack();

  private:
    struct Page {
        bool fromPowerButtons;
        QList<ToolCount> counts;
        QTableWidget *table;
        BarChart *chart;
    };
    [[nodiscard]] QWidget *makePage(bool fromPowerButtons, const QString &name);
    void shapeTable(QTableWidget &table) const;
    void fillTable(QTableWidget &table, const QList<ToolCount> &counts) const;
    void showCounts();
    void showBars();

    const SettingsStore &m_store;
    std::function<QString(const QString &)> m_nameOf;
    QLabel *m_head;
    QComboBox *m_span;
    QList<Page> m_pages;
};

} // namespace tolvo
