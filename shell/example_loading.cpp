// SPDX-License-Identifier: MIT
#include "shell/example_loading.h"

#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/button_sharing.h"
#include "powerbuttons/example_buttons.h"
#include "shell/frmMain.h"

namespace tolvo {

bool anyPowerButtonDefined(const CPowerButtonCollection &buttons) {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        if (!isEmptyPlace(buttons, number))
            return true;
    }
    return false;
}

void loadExamplePowerButtons(frmMain &session) {
    session.guarded(u"loadExamplePowerButtons", [&session] {
        const SessionServices &services = session.services();
        session.refreshPowerButtons();
        for (const auto &example : exampleButtons(services.oTools)) {
            const int number = firstEmptyPlace(services.oPowerButtons);
            if (number == 0)
                break;
            services.oPBMethods.SavePBSettings(*example, number);
            session.refreshPowerButtons();
        }
    });
}

} // namespace tolvo
