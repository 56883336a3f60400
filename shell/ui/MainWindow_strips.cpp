// SPDX-License-Identifier: MIT
// Lines of hints that come and go between the parts of the main window.
#include "shell/ui/ImageButton.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/dock_area.h"

#include <QBoxLayout>
#include <QSplitter>
#include <algorithm>

namespace tolvo {

void MainWindow::putOverText(QWidget &strip) {
    m_overText = &strip;
    putBefore(strip, *m_textArea);
}

void MainWindow::putOverPowerButtons(QWidget &strip) {
    m_overPowerButtons = &strip;
    putBefore(strip, *m_powerRow);
}

void MainWindow::setPowerButtonMenu(QMenu &menu) {
    m_cmdMore->setMenu(&menu);
}

void MainWindow::putUnderText(DockArea &area) {
    m_underText += &area;
    auto *column = qobject_cast<QBoxLayout *>(m_textArea->parentWidget()->layout());
    column->insertWidget(column->indexOf(m_textArea) + 1, &area);
}

bool MainWindow::isFocusInDock() const {
    return std::any_of(m_underText.begin(), m_underText.end(),
                       [](const auto &area) { return area && area->hasFocusInside(); });
}

void MainWindow::putBefore(QWidget &strip, QWidget &part) {
    auto *column = qobject_cast<QBoxLayout *>(part.parentWidget()->layout());
    column->insertWidget(column->indexOf(&part), &strip);
}

QList<WindowPart> MainWindow::parts() {
    const auto part = [](QWidget *area, QWidget *within) {
        return WindowPart{area, [within] { return firstStop(within); }};
    };
    QList<WindowPart> all{{m_textArea, [this] { return &shownTextBox(); }}};
    for (const QPointer<DockArea> &area : std::as_const(m_underText)) {
        if (area && area->isVisible())
            all += part(area, area);
    }
    if (m_overText)
        all += part(m_overText, m_overText);
    all += part(m_topBar, m_topBar);
    all += part(m_toolFinder, m_panel);
    QWidget *edge = m_splitter->handle(1);
    all += {edge, [edge] { return edge; }};
    if (m_overPowerButtons)
        all += part(m_overPowerButtons, m_overPowerButtons);
    all += part(m_powerRow, m_powerButtons);
    all += part(m_buttonRow, m_buttonRow);
    return all;
}

} // namespace tolvo
