// SPDX-License-Identifier: MIT
#include "powerbuttons/add_step.h"

#include "powerbuttons/circular_check.h"

namespace tolvo {

bool addStep(CPowerButtonCollection &buttons, CPowerButtonMethods &methods, const ToolPtr &tool, int number) {
    if (!tool || tool->isHeading() || tool->Token() == powerButtonToken)
        return false;
    const std::shared_ptr<CPowerButton> before = buttons.Item(number);
    // A copy: the button may be running.
    const auto button = before ? std::make_shared<CPowerButton>(*before) : std::make_shared<CPowerButton>();
    button->Add(std::make_shared<CAction>(
        tool, tool->gotDialog() ? SettingsFrom::Current : SettingsFrom::Prompt, QString()));
    if (!button->isDefined())
        button->Name = tool->plainName();
    methods.SavePBSettings(*button, number);
    buttons.Add(button, number);
    return true;
}

} // namespace tolvo
