// SPDX-License-Identifier: MIT
// The settings of the tools for one run: loaded at first use, kept while their dialogs are hidden, saved at
// the end of the run.
#pragma once

#include "text/tool_settings.h"

#include <array>
#include <optional>
#include <variant>

namespace tolvo {

class SettingsStore;

class ToolSettingsMemory {
  public:
    explicit ToolSettingsMemory(SettingsStore &store) : m_store(store) {}

    /// The settings as last used; read from the store at the first call. `settings` says of which struct, its
    /// values don't count.
    ToolSettings &get(const ToolSettings &settings);
    template <class Settings>
    Settings &get() {
        return std::get<Settings>(get(Settings()));
    }

    /// Saves what was loaded, as the dialogs do when they unload.
    void unload();

  private:
    SettingsStore &m_store;
    std::array<std::optional<ToolSettings>, std::variant_size_v<ToolSettings>> m_slots;
};

} // namespace tolvo
