// SPDX-License-Identifier: MIT
// A PowerButton: a name, a small text icon and an ordered list of Actions. There are eight.
#pragma once

#include "powerbuttons/CAction.h"
#include "preferences/settings_keys.h"

#include <QList>
#include <QString>
#include <array>
#include <memory>
#include <optional>

namespace tolvo {

/// One button: what the store keeps of it. A new one is undefined and has no Actions.
class CPowerButton {
  public:
    /// The name of a button that nobody has defined.
    [[nodiscard]] static QString undefinedName() { return settingKeys.powerButton.name.otherwise(); }
    [[nodiscard]] bool isDefined() const { return Name != undefinedName(); }

    QString Name = undefinedName();
    QString IconText;
    QString IconFontName;
    double IconFontSize = 0; ///< points
    bool IconFontBold = false;
    bool IconFontItalic = false;
    double IconX = 0; ///< where the text starts on the icon, in the units of icon_geometry.h
    double IconY = 0;

    // Positions count from 1.

    /// With `before`: inserts in front of that position, and `after` is ignored; with `after`: inserts
    /// after that position; with an `index` that exists: replaces what is there; else: appends. Gives the
    /// Action.
    std::shared_ptr<CAction> Add(std::shared_ptr<CAction> action, std::optional<int> index = {},
                                 std::optional<int> before = {}, std::optional<int> after = {});
    /// Nothing if there is no such position.
    [[nodiscard]] std::shared_ptr<CAction> Item(int position) const;
    [[nodiscard]] int Count() const { return static_cast<int>(m_actions.size()); }
    /// Nothing happens if there is no such position.
    void Remove(int position);
    void Clear() { m_actions.clear(); }

    /// Equal in all that the store keeps, Actions included.
    bool operator==(const CPowerButton &other) const;

  private:
    QList<std::shared_ptr<CAction>> m_actions;
};

/// Whether the button has steps and runs none of them.
[[nodiscard]] bool allSwitchedOff(const CPowerButton &button);

/// The eight buttons, by number from 1 to 8.
class CPowerButtonCollection {
  public:
    static constexpr int buttonCount = 8;

    /// Replaces whatever is there under the number.
    void Add(std::shared_ptr<CPowerButton> button, int number);
    /// Nothing for an unknown number.
    [[nodiscard]] std::shared_ptr<CPowerButton> Item(int number) const;
    /// How many numbers have a button.
    [[nodiscard]] int Count() const;
    void Remove(int number);

  private:
    std::array<std::shared_ptr<CPowerButton>, buttonCount> m_buttons;
};

} // namespace tolvo
