// SPDX-License-Identifier: MIT
#include "shell/keyboard.h"

#include "shell/frmMain.h"
#include "shell/key_table.h"

namespace tolvo {

// The window's stage

bool KeyboardCommands::formKeyDown(int code, int shiftState) {
    m_session.iShiftState = shiftState;
    bool consumed = true; // a key whose command failed has had its effect: the report
    m_session.guarded(u"Form_KeyDown",
                      [&] { consumed = run(findKey(KeyStage::Form, code, shiftState), code); });
    return consumed;
}

void KeyboardCommands::formKeyUp(int shiftState) {
    m_session.iShiftState = shiftState;
}

bool KeyboardCommands::formKeyPress(int code) {
    constexpr int ctrlV = 22;
    if (code != ctrlV)
        return false;
    bool mayPaste = false;
    m_session.guarded(u"Form_KeyPress", [&] { mayPaste = m_session.mayPaste(); });
    return !mayPaste;
}

bool KeyboardCommands::run(const KeyRow *row, int code) {
    return row != nullptr && row->run(*this, m_session, code - row->first);
}

// The text box's stage

bool KeyboardCommands::textKeyDown(int code) {
    const KeyRow *row = findKey(KeyStage::Text, code, m_session.iShiftState);
    if (row != nullptr)
        m_session.guarded(u"txtText1_KeyDown", [&] { run(row, code); });
    return row != nullptr;
}

bool KeyboardCommands::textKeyPress(int code) {
    m_session.setStatus({});
    bool consumed = true;
    m_session.guarded(u"txtText1_KeyPress", [&] {
        consumed = run(findKey(KeyStage::TextCharacter, code, m_session.iShiftState), code);
    });
    return consumed;
}

bool KeyboardCommands::commandFromElsewhere(int code, int character) {
    if (textKeyDown(code))
        return true;
    return findKey(KeyStage::TextCharacter, character, m_session.iShiftState) != nullptr &&
           textKeyPress(character);
}

void KeyboardCommands::describeCharacter() {
    if (m_session.txtCurrent().SelStart() < m_session.txtCurrent().length())
        ShowCharacterInfo();
    else
        m_session.setStatus(QStringLiteral("Not a valid character position"));
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
