// SPDX-License-Identifier: MIT
// PowerButtons in the settings store: section "PowerButtons\Button N", one subsection for each Action.
#pragma once

#include "platform/message_box.h"
#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"

namespace tolvo {

class SettingsStore;

class CPowerButtonMethods {
  public:
    CPowerButtonMethods(SettingsStore &store, const Catalogue &tools, MessageBoxes &boxes);

    /// Deletes the button's whole section and writes it anew, in one transaction. Failures are reported.
    void SavePBSettings(const CPowerButton &button, int number);
    /// True if the button ended with at least one Action. An Action whose token the catalogue doesn't know
    /// keeps its place as "toolNULL", and a box says so. A value that can't be read takes its default (0 for
    /// DlgOption), and one report names the button and all such values.
    bool ReadPBSettings(CPowerButton &button, int number);
    /// The button as the store has it, if that is another than `button`; else nothing, and nothing is said.
    [[nodiscard]] std::shared_ptr<CPowerButton> changedInStore(const CPowerButton &button, int number);

  private:
    /// False if it failed, which has been reported then.
    [[nodiscard]] bool DeletePBSetting(int number);

    SettingsStore &m_store;
    const Catalogue &m_tools;
    MessageBoxes &m_boxes;
};

} // namespace tolvo
