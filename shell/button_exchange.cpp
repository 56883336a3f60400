// SPDX-License-Identifier: MIT
#include "shell/button_exchange.h"

#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/button_sharing.h"
#include "shell/frmMain.h"

namespace tolvo {

namespace {

bool mayReplace(const SessionServices &services, const CPowerButton &coming, int number) {
    if (isEmptyPlace(services.oPowerButtons, number))
        return true;
    const CPowerButton &present = *services.oPowerButtons.Item(number);
    return present == coming ||
           services.boxes.show({.text = QStringLiteral("Replace PowerButton %1 '%2' with '%3'?")
                                            .arg(QString::number(number), present.Name, coming.Name),
                                .icon = BoxIcon::Question,
                                .buttons = BoxButtons::YesNo}) == BoxAnswer::Yes;
}

} // namespace

bool takeSharedButtons(frmMain &session, const SharedButtons &shared, int number) {
    bool taken = false;
    session.guarded(u"takeSharedButtons", [&] {
        const SessionServices &services = session.services();
        session.refreshPowerButtons();
        const PlacedButtons placed = placeButtons(shared, services.oPowerButtons, number);
        if (!placed.trouble.isEmpty())
            return session.say(placed.trouble + u'.', BoxIcon::Exclamation);
        if (!mayReplace(services, *placed.places.back().button, number))
            return;
        for (const auto &[place, button] : placed.places)
            services.oPBMethods.SavePBSettings(*button, place);
        session.refreshPowerButtons();
        session.setStatus(QStringLiteral("Loaded: ") + shared.main().Name);
        taken = true;
    });
    return taken;
}

} // namespace tolvo
