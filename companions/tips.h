// SPDX-License-Identifier: MIT
// The tips that Advisor.exe shows.
#pragma once

#include <QString>
#include <span>

namespace tolvo {

class SettingsStore;

/// A tip as its window shows it.
struct Tip {
    const char16_t *title;
    const char16_t *text;
};

/// All tips, in the order in which they are shown.
[[nodiscard]] std::span<const Tip> tips();

/// Which tip is shown: a place in tips() that goes round at both ends, remembered in the store.
class TipWalk {
  public:
    /// Begins with the tip after the one that was shown last, at first with the first.
    explicit TipWalk(SettingsStore &store);

    [[nodiscard]] int place() const { return m_place; }
    [[nodiscard]] const Tip &tip() const { return tips()[static_cast<std::size_t>(m_place)]; }
    void next() { goTo(m_place + 1); }
    void previous() { goTo(m_place - 1); }

    /// "Show tips at startup", as the Options know it too.
    [[nodiscard]] bool showAtStartup() const;
    void setShowAtStartup(bool show);

  private:
    void goTo(int place);

    SettingsStore &m_store;
    int m_place = 0;
};

} // namespace tolvo
