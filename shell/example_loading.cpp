// SPDX-License-Identifier: MIT
#include "shell/example_loading.h"

#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/example_buttons.h"
#include "shell/frmMain.h"

namespace tolvo {

namespace {

bool isTaken(const CPowerButtonCollection &buttons, int number) {
    const auto button = buttons.Item(number);
    return button && (button->isDefined() || button->Count() > 0);
}

} // namespace

bool anyPowerButtonDefined(const CPowerButtonCollection &buttons) {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        if (isTaken(buttons, number))
            return true;
    }
    return false;
}

void loadExamplePowerButtons(frmMain &session) {
    session.guarded(u"loadExamplePowerButtons", [&session] {
        const SessionServices &services = session.services();
        session.refreshPowerButtons();
        int number = 1;
        for (const auto &example : exampleButtons(services.oTools)) {
            while (isTaken(services.oPowerButtons, number))
                ++number;
            if (number > CPowerButtonCollection::buttonCount)
                break;
            services.oPBMethods.SavePBSettings(*example, number);
            session.refreshPowerButtons();
        }
    });
}

} // namespace tolvo
