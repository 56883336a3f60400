// SPDX-License-Identifier: MIT
#include "shell/ui/search_docking.h"

#include "preferences/settings_keys.h"
#include "search/ui/frmSearch.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/clear_of_text.h"
#include "shell/ui/dock_area.h"
#include "shell/ui/keys_of_part.h"
#include "shell/ui/part_walk.h"

#include <QAction>
#include <QTimer>

namespace tolvo {

void SearchDocking::add(frmSearch &search) {
    if (canPlaceWindows()) {
        auto *choice = new QAction(QStringLiteral("Below the text"), &search);
        choice->setObjectName(QStringLiteral("searchBelow"));
        choice->setCheckable(true);
        choice->setChecked(docks());
        QObject::connect(choice, &QAction::triggered, &search, [this, &search](bool below) {
            set(m_store, settingKeys.view.searchBelow, below);
            const bool shown = search.isVisible();
            search.hide();
            arrange(search);
            if (shown)
                search.showAgain();
        });
        search.addAction(choice);
        search.setContextMenuPolicy(Qt::ActionsContextMenu);
    }
    arrange(search);
}

bool SearchDocking::docks() const {
    return !canPlaceWindows() || get(m_store, settingKeys.view.searchBelow);
}

void SearchDocking::arrange(frmSearch &search) {
    if (docks())
        area(m_searchArea, "searchArea").take(search);
    else if (m_searchArea)
        m_searchArea->release(m_main);
}

void SearchDocking::asWindow(frmSearch &search, const std::function<void()> &run) {
    if (m_searchArea)
        m_searchArea->release(m_main);
    run();
    arrange(search);
}

int SearchDocking::run(QDialog &list) {
    if (!docks())
        return list.exec();
    DockArea &below = area(m_listArea, "resultsArea");
    below.take(list);
    const OnlyPart only(below);
    const bool searchShown = m_searchArea && m_searchArea->isVisible();
    QTimer::singleShot(0, &list, [&] {
        if (QWidget *stop = firstStop(&list))
            stop->setFocus(Qt::OtherFocusReason);
        if (searchShown)
            m_searchArea->hide(); // after the focus has left it
    });
    const int result = list.exec();
    if (searchShown && m_searchArea)
        m_searchArea->show();
    below.release(m_main);
    return result;
}

DockArea &SearchDocking::area(QPointer<DockArea> &area, const char *name) {
    if (!area) {
        area = new DockArea(QLatin1StringView(name), [this] { m_main.shownTextBox().setFocus(); });
        area->onShown = [this] { m_main.shownTextBox().ensureCursorVisible(); };
        m_main.putUnderText(*area);
    }
    return *area;
}

} // namespace tolvo
