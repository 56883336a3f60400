// SPDX-License-Identifier: MIT
#include "shell/tool_settings_memory.h"

namespace tolvo {

void ToolSettingsMemory::unload() {
    std::apply(
        [this](const auto &...slot) {
            const auto save = [this](const auto &settings) {
                if (settings)
                    saveSettings(m_store, *settings);
            };
            (save(slot), ...);
        },
        m_slots);
}

} // namespace tolvo
