// SPDX-License-Identifier: MIT
#include "shell/record_button.h"

#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/button_sharing.h"
#include "shell/frmMain.h"

namespace tolvo {

void recordPowerButton(frmMain &session) {
    session.guarded(u"recordPowerButton", [&session] {
        const SessionServices &services = session.services();
        session.noteText();
        const QList<std::shared_ptr<CAction>> actions = session.history().latestActions();
        if (actions.isEmpty())
            return session.say(QStringLiteral("No tool has changed the text so far."));
        session.refreshPowerButtons();
        const int number = firstEmptyPlace(services.oPowerButtons);
        if (number == 0)
            return session.say(
                QStringLiteral("All PowerButtons are in use. Destroy one in its editor first."));
        const auto empty = services.oPowerButtons.Item(number);
        const auto button = empty ? std::make_shared<CPowerButton>(*empty) : std::make_shared<CPowerButton>();
        for (const std::shared_ptr<CAction> &action : actions)
            button->Add(std::make_shared<CAction>(*action));
        services.oPowerButtons.Add(button, number);
        services.dialogs.editPowerButton(number - 1);
        services.view.powerButtonChanged(number - 1);
        session.refreshPowerButtons();
        session.txtCurrent().setFocus();
    });
}

} // namespace tolvo
