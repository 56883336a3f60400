// SPDX-License-Identifier: MIT
#pragma once

#include "shell/session_windows.h"
#include "spelling/languages.h"

#include <array>
#include <optional>

namespace tolvo {

/// What a session gets where there is no window: tools run with the settings last used, and nothing opens.
/// tolvo-pipe runs its sessions on this; tests override what they want to see.
class HeadlessWindows : public SessionView, public SessionDialogs, public SearchWindow, public SearchResults {
  public:
    std::optional<TextStatistics> statistics; ///< what was shown last

    // SessionView
    void statusChanged(const QString &) override {}
    void undoRedoChanged(bool, bool) override {}
    void showTextBox(bool) override {}
    void setTextFont(bool wrapped, const Font &font) override { m_fonts[wrapped ? 1 : 0] = font; }
    Font textFont(bool wrapped) const override { return m_fonts[wrapped ? 1 : 0]; }
    void endSession() override {}
    void bringToFront() override {}
    void processEvents() override {}
    void powerButtonChanged(int) override {}

    // SessionDialogs
    bool askToolSettings(ToolSettings &) override { return true; }
    CloseAnswer confirmClose(const QString &) override { return CloseAnswer::Cancel; }
    void showOptions() override {}
    void showAbout() override {}
    void showStatistics(const TextStatistics &shown) override { statistics = shown; }
    void editPowerButton(int) override {}
    int GetLangID(int, bool) override { return languageCancelled; }
    bool CheckSpelling(ProofingHost &, QString &, int, bool) override { return false; }
    SearchWindow &searchWindow() override { return *this; }
    void showSearchDirection(SearchDirection) override {}
    SearchResults &searchResults() override { return *this; }

    // SearchWindow
    SearchRequest request() override { return {}; }
    void setSearchText(const QString &) override {}
    void setSpecialChars(bool) override {}
    void expandDialog() override {}
    void showDialog(bool) override {}
    void showCopyMatches() override {}
    void cmdSearch_Click() override {}

    // SearchResults
    void clear() override {}
    void add(const HitLine &, qint32) override {}
    void setCaption(const QString &) override {}
    void show() override {}

  private:
    std::array<Font, 2> m_fonts{Font{QStringLiteral("Arial"), 10}, Font{QStringLiteral("Arial"), 10}};
};

} // namespace tolvo
