// SPDX-License-Identifier: MIT
// The settings of the tool dialogs for one run: loaded at first use, kept while hidden, saved at the end of
// the run.
#pragma once

#include "text/tool_settings.h"

#include <optional>
#include <tuple>

namespace tolvo {

class SettingsStore;

class ToolSettingsMemory {
  public:
    explicit ToolSettingsMemory(SettingsStore &store) : m_store(store) {}

    /// The settings as last used; read from the store at the first call.
    template <class Settings>
    Settings &get() {
        auto &slot = std::get<std::optional<Settings>>(m_slots);
        if (!slot)
            slot = loadSettings<Settings>(m_store);
        return *slot;
    }

    /// Saves what was loaded, as the dialogs do when they unload.
    void unload();

  private:
    SettingsStore &m_store;
    std::tuple<std::optional<IndentSettings>, std::optional<WordWrapSettings>,
               std::optional<RemoveLinesSettings>, std::optional<BulletSettings>,
               std::optional<NumberListSettings>, std::optional<LineNumberSettings>>
        m_slots;
};

} // namespace tolvo
