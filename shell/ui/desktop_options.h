// SPDX-License-Identifier: MIT
#pragma once

#include "preferences/ui/dlgPreferences.h"
#include "shell/modMain.h"

#include <functional>

namespace tolvo {

/// Does what the Options dialog asks for, on the session and the store.
class DesktopOptions : public OptionsActions {
  public:
    /// `configureProvider` opens the language list of a provider, 0 to 3, `editOwnWords` the list of the
    /// user's words.
    DesktopOptions(const RunServices &services, frmMain &session, std::function<void(int)> configureProvider,
                   std::function<void()> editOwnWords)
        : m_services(services), m_session(session), m_configureProvider(std::move(configureProvider)),
          m_editOwnWords(std::move(editOwnWords)) {}

    void apply(const ProgramOptions &options) override;
    [[nodiscard]] bool isSystemExtension(const QString &extension) const override;
    void checkNow() override;
    void viewStatistics() override;
    void exportPrefs(const QString &file, bool powerButtonsOnly) override;
    void importPrefs(const QString &file) override;
    void configureProvider(int provider) override { m_configureProvider(provider); }
    void editOwnWords() override { m_editOwnWords(); }

  private:
    RunServices m_services;
    frmMain &m_session;
    std::function<void(int)> m_configureProvider;
    std::function<void()> m_editOwnWords;
};

} // namespace tolvo
