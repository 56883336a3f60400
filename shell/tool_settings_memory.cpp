// SPDX-License-Identifier: MIT
#include "shell/tool_settings_memory.h"

namespace tolvo {

ToolSettings &ToolSettingsMemory::get(const ToolSettings &settings) {
    auto &slot = m_slots.at(settings.index());
    if (!slot)
        slot = loadSettings(settings, m_store);
    return *slot;
}

void ToolSettingsMemory::unload() {
    for (const auto &slot : m_slots) {
        if (slot)
            saveSettings(m_store, *slot);
    }
}

} // namespace tolvo
