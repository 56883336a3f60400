// SPDX-License-Identifier: MIT
#include "shell/ui/power_button_hint.h"

#include "preferences/settings_keys.h"
#include "shell/example_loading.h"
#include "shell/frmMain.h"
#include "shell/ui/MainWindow.h"
#include "shell/ui/hint_strip.h"

namespace tolvo {

PowerButtonHint::PowerButtonHint(frmMain &session, MainWindow &window)
    : m_session(session), m_window(window) {
    refresh();
}

PowerButtonHint::~PowerButtonHint() {
    delete m_line;
}

void PowerButtonHint::refresh() {
    const bool wanted = !anyPowerButtonDefined(m_session.services().oPowerButtons) &&
                        get(m_session.services().store, settingKeys.hints.powerButtonHint);
    if (wanted && m_line == nullptr)
        makeLine();
    if (m_line == nullptr || wanted != m_line->isHidden())
        return;
    if (m_line->isAncestorOf(m_window.focusWidget()))
        m_window.shownTextBox().setFocus();
    QList<HintStrip::Button> buttons;
    if (wanted)
        buttons += {QStringLiteral("Load examples"),
                    QStringLiteral("Put a few ready-made PowerButtons into the empty places")};
    m_line->setButtons(buttons);
}

void PowerButtonHint::makeLine() {
    m_line = new HintStrip(QStringLiteral("firstSteps"),
                           QStringLiteral("PowerButtons run several tools with one click"),
                           QStringLiteral("Close this line for good"), &m_window);
    m_line->onClick = [this](int) {
        loadExamplePowerButtons(m_session);
        m_window.hintChanged(QStringLiteral("A right click on a PowerButton shows its steps"));
    };
    m_line->onClose = [this] { close(); };
    m_window.putOverPowerButtons(*m_line);
}

void PowerButtonHint::close() {
    m_session.guarded(u"closeHint", [this] {
        set(m_session.services().store, settingKeys.hints.powerButtonHint, false);
        refresh();
    });
}

} // namespace tolvo
