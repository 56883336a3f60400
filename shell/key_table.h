// SPDX-License-Identifier: MIT
// Every key that is a command, one row each: KeyboardCommands runs them, and the sheet of keys lists them.
#pragma once

#include "shell/keyboard.h"

#include <QString>
#include <span>

namespace tolvo {

class frmMain;

/// The groups of the sheet, in its order.
enum class KeyGroup { Session, History, Search, Edit, PowerButtons, Window };
[[nodiscard]] QString groupTitle(KeyGroup group);

/// Who sees a key, and by what code it is known.
enum class KeyStage {
    Form,         ///< the window, by its virtual key code
    Text,         ///< the text box, by its virtual key code
    TextCharacter ///< the text box, by its character code
};

/// The modifiers that a key needs: of those in `looked`, exactly those in `held` (ShiftState bits).
struct HeldKeys {
    int looked;
    int held;

    [[nodiscard]] constexpr bool match(int shiftState) const { return (shiftState & looked) == held; }
};

struct KeyRow {
    KeyGroup group;
    KeyStage stage;
    int first; ///< the codes that it answers to
    int last;
    HeldKeys modifiers;
    /// `place` counts the codes from 0. Gives whether the key is consumed.
    bool (*run)(KeyboardCommands &keys, frmMain &session, int place);
    const char16_t *does;
};

/// Every key that is a command, in the order in which they are looked up.
[[nodiscard]] std::span<const KeyRow> keyTable();

/// The first row that answers to a code; null if none does.
[[nodiscard]] const KeyRow *findKey(KeyStage stage, int code, int shiftState);

/// How a user reads a row's keys: "Ctrl-Shift-C", "Alt-F1 to F8".
[[nodiscard]] QString keyNames(const KeyRow &row);

} // namespace tolvo
