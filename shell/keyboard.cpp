// SPDX-License-Identifier: MIT
#include "shell/keyboard.h"

#include "shell/frmMain.h"

namespace tolvo {

namespace {

/// Character codes of Ctrl and a letter or a bracket.
namespace charCode {
constexpr int CtrlA = 1;
constexpr int CtrlC = 3;
constexpr int CtrlF = 6;
constexpr int CtrlH = 8; // Backspace has the same code
constexpr int CtrlK = 11;
constexpr int CtrlL = 12;
constexpr int CtrlO = 15;
constexpr int CtrlR = 18;
constexpr int CtrlS = 19;
constexpr int CtrlT = 20;
constexpr int CtrlU = 21;
constexpr int CtrlV = 22;
constexpr int CtrlY = 25;
constexpr int CtrlZ = 26;
constexpr int CtrlOpeningBracket = 27; // Escape has the same code
constexpr int CtrlClosingBracket = 29;
} // namespace charCode

bool between(int value, int low, int high) {
    return value >= low && value <= high;
}

} // namespace

// The window's stage

bool KeyboardCommands::formKeyDown(int code, int shiftState) {
    m_session.iShiftState = shiftState;
    bool consumed = true; // a key whose command failed has had its effect: the report
    m_session.guarded(u"Form_KeyDown", [&] { consumed = powerButtonKey(code) || commandKey(code); });
    return consumed;
}

void KeyboardCommands::formKeyUp(int shiftState) {
    m_session.iShiftState = shiftState;
}

bool KeyboardCommands::formKeyPress(int code) {
    if (code != charCode::CtrlV)
        return false;
    bool mayPaste = false;
    m_session.guarded(u"Form_KeyPress", [&] { mayPaste = m_session.mayPaste(); });
    return !mayPaste;
}

// Alt and a function key runs a PowerButton, Ctrl and a digit as well, since desktops keep some of the former
// for themselves. With Shift both open the editor, as a right click does.
bool KeyboardCommands::powerButtonKey(int code) {
    const int shift = m_session.iShiftState;
    const int modifier = shift & ~ShiftState::Shift;
    int index = -1;
    if (modifier == ShiftState::Alt && between(code, keyCode::F1, keyCode::F8))
        index = code - keyCode::F1;
    else if (modifier == ShiftState::Ctrl && between(code, keyCode::Digit1, keyCode::Digit8))
        index = code - keyCode::Digit1;
    else
        return false;
    m_session.bRightButton = (shift & ShiftState::Shift) != 0;
    m_session.imgPower_Click(index);
    return true;
}

bool KeyboardCommands::commandKey(int code) {
    const int shift = m_session.iShiftState;
    const bool alt = shift == ShiftState::Alt;
    const auto run = [](bool needed, auto &&command) {
        if (needed)
            command();
        return needed;
    };
    switch (code) {
    case keyCode::Up:
        return run(alt, [&] { m_session.ToolDespatcher(QStringLiteral("soNUP")); });
    case keyCode::Down:
        return run(alt, [&] { m_session.ToolDespatcher(QStringLiteral("soNUD")); });
    case keyCode::F1:
        return run(shift == 0, [&] { m_session.imgHelp_Click(); });
    case keyCode::F3:
        return run(shift == 0, [&] { m_session.FindAgain(); });
    case keyCode::F7:
        return run((shift & ShiftState::Shift) != 0, [&] {
            m_session.bRightButton = true; // at once, in the language last used
            m_session.ToolDespatcher(QStringLiteral("chGRA"));
        });
    case keyCode::D:
        return run(alt, [&] { m_session.cmdClose_Click(); });
    case keyCode::Q:
        return run(alt, [&] { m_session.cmdCancel_Click(); });
    case keyCode::W:
        return run(alt, [&] { m_session.imgWordwrap_Click(); });
    default: // F2, F4, F5 and F6 are kept free
        return false;
    }
}

// The text box's stage

bool KeyboardCommands::textKeyDown(int code) {
    if (code != keyCode::Slash || m_session.iShiftState != ShiftState::Ctrl)
        return false;
    m_session.guarded(u"txtText1_KeyDown", [&] {
        if (m_session.txtCurrent().SelStart() < m_session.txtCurrent().length())
            ShowCharacterInfo();
        else
            m_session.setStatus(QStringLiteral("Not a valid character position"));
    });
    return true;
}

bool KeyboardCommands::textKeyPress(int code) {
    m_session.setStatus({});
    bool consumed = true;
    m_session.guarded(u"txtText1_KeyPress", [&] { consumed = controlCharacter(code); });
    return consumed;
}

bool KeyboardCommands::controlCharacter(int code) {
    const int shift = m_session.iShiftState;
    switch (code) {
    case charCode::CtrlA:
        select(m_session.txtCurrent(), 0, m_session.txtCurrent().length());
        return true;
    case charCode::CtrlC:
        if (shift != (ShiftState::Ctrl | ShiftState::Shift))
            return false; // the text box copies
        m_session.cmdClose_Click();
        return true;
    case charCode::CtrlF:
        m_session.ToolDespatcher(QStringLiteral("edSRC"));
        return true;
    case charCode::CtrlH:
        if ((shift & ShiftState::Ctrl) == 0)
            return false;
        m_session.ToolDespatcher(QStringLiteral("edREP"));
        return true;
    case charCode::CtrlK:
        doKBInitCaps();
        return true;
    case charCode::CtrlL:
        doKBLowerCase();
        return true;
    case charCode::CtrlO:
        m_session.imgOptions_Click();
        return true;
    case charCode::CtrlR:
        return repeatLastTool();
    case charCode::CtrlS:
        doKBSwopCase();
        return true;
    case charCode::CtrlT:
        doKBTranspose();
        return true;
    case charCode::CtrlU:
        doKBUpperCase();
        return true;
    case charCode::CtrlY:
        m_session.cmdRedo_Click();
        return true;
    case charCode::CtrlZ:
        if ((shift & ShiftState::Shift) != 0)
            m_session.cmdRedo_Click();
        else
            m_session.undoStep();
        return true;
    case charCode::CtrlOpeningBracket:
    case charCode::CtrlClosingBracket:
        MatchBracket();
        return true;
    default:
        return false;
    }
}

bool KeyboardCommands::repeatLastTool() {
    const QString last = m_session.sLastTool;
    if (last.isEmpty())
        return false;
    QString name;
    if (last.startsWith(QLatin1StringView("PB"))) {
        const int index = last.sliced(2).toInt();
        m_session.bRightButton = false;
        m_session.imgPower_Click(index);
        if (const auto button = m_session.services().oPowerButtons.Item(index + 1))
            name = button->Name;
    } else {
        m_session.bRightButton = true;
        m_session.ToolDespatcher(last);
        if (const ToolPtr tool = m_session.services().oTools.tool(last))
            name = tool->Name();
    }
    m_session.setStatus(QStringLiteral("Repeated: ") + name);
    return true;
}

} // namespace tolvo
