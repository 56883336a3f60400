// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <functional>

class QAction;
class QDialog;

namespace tolvo {

class DockArea;
class MainWindow;
class SettingsStore;
class frmSearch;

/// Where the windows of a search live: beside the text, or, where a program can't place its windows and where
/// the user wants it so, in a strip below the text. One layout serves both.
class SearchDocking final {
  public:
    /// Both outlive this.
    SearchDocking(MainWindow &main, SettingsStore &store) : m_main(main), m_store(store) {}

    /// Puts the search window, which is new, where it belongs, and offers the choice in its context menu.
    void add(frmSearch &search);
    /// Runs something that needs the search window as a window.
    void asWindow(frmSearch &search, const std::function<void()> &run);
    /// Runs the list of results to its end as if it were modal, and gives what QDialog::exec gives.
    int run(QDialog &list);

  private:
    [[nodiscard]] bool docks() const;
    void arrange(frmSearch &search);
    DockArea &area(QPointer<DockArea> &area, const char *name);

    MainWindow &m_main;
    SettingsStore &m_store;
    QPointer<DockArea> m_searchArea;
    QPointer<DockArea> m_listArea;
};

} // namespace tolvo
