// SPDX-License-Identifier: MIT
// Lines of hints that come and go between the parts of the main window.
#include "shell/ui/ImageButton.h"
#include "shell/ui/MainWindow.h"

#include <QBoxLayout>

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

void MainWindow::putBefore(QWidget &strip, QWidget &part) {
    auto *column = qobject_cast<QBoxLayout *>(part.parentWidget()->layout());
    column->insertWidget(column->indexOf(&part), &strip);
}

QList<WindowPart> MainWindow::parts() {
    const auto part = [](QWidget *area, QWidget *within) {
        return WindowPart{area, [within] { return firstStop(within); }};
    };
    QList<WindowPart> all{{m_textArea, [this] { return &shownTextBox(); }}};
    if (m_overText)
        all += part(m_overText, m_overText);
    all += part(m_topBar, m_topBar);
    all += part(m_toolFinder, m_panel);
    if (m_overPowerButtons)
        all += part(m_overPowerButtons, m_overPowerButtons);
    all += part(m_powerRow, m_powerButtons);
    all += part(m_buttonRow, m_buttonRow);
    return all;
}

} // namespace tolvo
