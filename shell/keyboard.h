// SPDX-License-Identifier: MIT
// What the keys do. A key passes two stages: the window's handlers see every key first, then those of the
// text box see the characters. Nothing of the toolkit is known here: keys come as virtual key codes and
// character codes.
#pragma once

#include <QString>
#include <array>

namespace tolvo {

class frmMain;
struct KeyRow;

/// The bits of frmMain::iShiftState.
namespace ShiftState {
inline constexpr int Shift = 1;
inline constexpr int Ctrl = 2;
inline constexpr int Alt = 4;
} // namespace ShiftState

/// Virtual key codes that mean something; letters and digits have their ASCII codes.
namespace keyCode {
inline constexpr int Up = 38;
inline constexpr int Down = 40;
inline constexpr int Digit1 = 49;
inline constexpr int Digit8 = 56;
inline constexpr int D = 68;
inline constexpr int Q = 81;
inline constexpr int W = 87;
inline constexpr int Z = 90;
inline constexpr int F1 = 112;
inline constexpr int F3 = 114;
inline constexpr int F7 = 118;
inline constexpr int F8 = 119;
inline constexpr int Slash = 191;
/// The letters that are commands with Alt alone.
inline constexpr std::array AltLetters{D, Q, W};
} // namespace keyCode

/// Every operation that returns a flag says whether the key is consumed: the window must then do nothing more
/// with it. Failures of what a key runs are reported and go no further.
class KeyboardCommands {
  public:
    explicit KeyboardCommands(frmMain &session) : m_session(session) {}

    // The window's stage. `shiftState` holds ShiftState bits.

    /// Runs the command of a key, if it has one.
    bool formKeyDown(int code, int shiftState);
    /// Only takes over the state of the modifiers.
    void formKeyUp(int shiftState);
    /// The paste check of Ctrl-V (character code 22).
    bool formKeyPress(int charCode);

    // The text box's stage, for keys that the window's stage left alone.

    /// Keys that are known by their virtual key code.
    bool textKeyDown(int code);
    /// `charCode` is the character; Ctrl and a letter give the letter's position in the alphabet. Call it for
    /// every character, typed or not.
    bool textKeyPress(int charCode);

    /// The commands of the text box's stage for a key that another control of the window has no use for. It
    /// types nothing, and an unknown key leaves the status line as it is. `charCode` may be -1.
    bool commandFromElsewhere(int code, int charCode);

    // Quick edits at the caret, not counted in the usage statistics

    /// Change the case of the selection, or of the character after the caret, and put the caret after it.
    void doKBUpperCase();
    void doKBLowerCase();
    void doKBSwopCase();
    void doKBInitCaps();
    /// The characters before and after the caret change places. Nothing at either end of the text.
    void doKBTranspose();
    /// Selects the partner of the bracket beside the caret; a box says if there is none.
    void MatchBracket();
    /// Shows place and code of the character after the caret, which there must be.
    void ShowCharacterInfo();
    /// The same, with a word in the status line if there is no such character.
    void describeCharacter();
    /// Runs the tool or PowerButton of frmMain::sLastTool again, without its dialog; false if there is none.
    bool repeatLastTool();

  private:
    bool run(const KeyRow *row, int code);
    /// Runs an edit of `length` characters as one step of the history.
    template <class Edit>
    void quickEdit(int length, Edit edit);
    template <class Convert>
    void convertAtCaret(Convert convert);
    /// With a bare caret, the character after it becomes the selection: both halves of a surrogate pair.
    void selectCharacterAtCaret();

    frmMain &m_session;
};

} // namespace tolvo
