// SPDX-License-Identifier: MIT
// What a session gets where there is no window: tool dialogs are answered with the settings last used, and
// nothing else opens. tolvo-pipe runs its sessions on this; tests override what they want to see.
#pragma once

#include "search/search_host.h"
#include "shell/session_windows.h"
#include "spelling/Proofing.h"

#include <optional>

namespace tolvo {

class HeadlessWindows : public SessionWindows,
                        public SessionView,
                        public ToolDialogs,
                        public SearchWindow,
                        public SearchResults,
                        public SpellingWalk,
                        public LanguageChooser {
  public:
    std::optional<TextStatistics> statistics; ///< what was shown last

    // SessionWindows
    CloseAnswer confirmClose(const QString &) override { return CloseAnswer::Cancel; }
    void showOptions() override {}
    void showAbout() override {}
    void showStatistics(const TextStatistics &shown) override { statistics = shown; }
    void editPowerButton(int) override {}
    SearchWindow &search() override { return *this; }
    ToolDialogs &toolDialogs() override { return *this; }

    // SessionView
    void statusChanged(const QString &) override {}
    void undoRedoChanged(bool, bool) override {}
    void showTextBox(bool) override {}
    void setTextFont(bool wrapped, const Font &font) override { m_fonts[wrapped ? 1 : 0] = font; }
    Font textFont(bool wrapped) const override { return m_fonts[wrapped ? 1 : 0]; }
    void hide() override {}
    void bringToFront() override {}
    void processEvents() override {}
    void powerButtonChanged(int) override {}

    // ToolDialogs
    bool ask(ToolSettings &) override { return true; }

    // SearchWindow and SearchResults
    void setSearchText(const QString &) override {}
    QString searchText() override { return {}; }
    void setSpecialChars(bool) override {}
    bool specialChars() override { return false; }
    void expandDialog() override {}
    void showDialog(bool) override {}
    void cmdSearch_Click() override {}
    SearchRequest request() override { return {}; }
    void setDirection(SearchDirection) override {}
    void clear() override {}
    void add(const QString &, qint32) override {}
    void setCaption(const QString &) override {}
    void show() override {}

    // SpellingWalk and LanguageChooser
    bool CheckSpelling(ProofingHost &, QString &, int, bool) override { return false; }
    int GetLangID(int, bool) override { return -2; }

  private:
    std::array<Font, 2> m_fonts{Font{QStringLiteral("Arial"), 10}, Font{QStringLiteral("Arial"), 10}};
};

} // namespace tolvo
