// SPDX-License-Identifier: MIT
// Steps of PowerButtons as the user reads them, in the row, in the editor and in what is shared.
#pragma once

#include <QString>
#include <functional>

namespace tolvo {

class CAction;
class CPowerButton;
class CPowerButtonCollection;

/// The name of the PowerButton of a number; empty if none is defined there.
using ButtonNames = std::function<QString(int number)>;

/// A step with its settings: "Word wrap: width 60, tab", "Indent: as used last", "Run PowerButton: Letters".
/// "(no tool yet)" for a blank one.
[[nodiscard]] QString stepInWords(const CAction &action, const ButtonNames &names);

/// The step of a position from 1 as a line of a list: "2. Word wrap: width 60, tab".
[[nodiscard]] QString stepLine(int position, const CAction &action, const CPowerButtonCollection &buttons);

/// The steps of a PowerButton by their names: "1. Trim line ends, 2. Title case (off)". Of many steps the
/// first eight are named and the rest is counted: "..., and 4 more". Empty without steps.
[[nodiscard]] QString stepWords(const CPowerButton &button);

/// What is said of a step that is switched off, with a blank before it; empty for any other step.
[[nodiscard]] QString offRemark(const CAction &action);

} // namespace tolvo
