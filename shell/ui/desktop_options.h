// SPDX-License-Identifier: MIT
#pragma once

#include "preferences/ui/dlgPreferences.h"
#include "shell/modMain.h"

#include <functional>

namespace tolvo {

/// Does what the Options dialog asks for, on the session and the store.
class DesktopOptions : public OptionsActions {
  public:
    explicit DesktopOptions(const RunServices &services) : m_services(services) {}

    void attach(frmMain &session) { m_session = &session; }

    void apply(const ProgramOptions &options) override;
    [[nodiscard]] bool isSystemExtension(const QString &extension) const override;
    void checkNow() override;
    void viewStatistics() override;
    void exportPrefs(const QString &file, bool powerButtonsOnly) override;
    void importPrefs(const QString &file) override;
    void configureProvider(int provider) override;

    std::function<void()> onApplied;              ///< windows take over the new fonts
    std::function<void(int)> onConfigureProvider; ///< opens the language list of a provider

  private:
    RunServices m_services;
    frmMain *m_session = nullptr;
};

} // namespace tolvo
