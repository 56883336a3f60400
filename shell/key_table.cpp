// SPDX-License-Identifier: MIT
#include "shell/key_table.h"

#include "shell/frmMain.h"

#include <algorithm>
#include <array>

namespace tolvo {

namespace {

using enum KeyGroup;
using enum KeyStage;

constexpr int allModifiers = ShiftState::Shift | ShiftState::Ctrl | ShiftState::Alt;
constexpr HeldKeys any{0, 0};
constexpr HeldKeys none{allModifiers, 0};

constexpr HeldKeys alone(int held) {
    return {allModifiers, held};
}

/// Character code of Ctrl and a letter or a bracket.
constexpr int ctrl(char16_t letter) {
    return letter - u'A' + 1;
}

template <auto command>
bool call(KeyboardCommands &keys, frmMain &session, int) {
    if constexpr (std::is_invocable_v<decltype(command), frmMain &>)
        std::invoke(command, session);
    else
        std::invoke(command, keys);
    return true;
}

/// A token as an argument of a template.
struct Token {
    char16_t text[6]{};
    template <std::size_t size>
    consteval Token(const char16_t (&literal)[size]) { // NOLINT(google-explicit-constructor)
        std::copy_n(literal, size, text);
    }
};

template <Token token>
bool tool(KeyboardCommands &, frmMain &session, int) {
    session.ToolDespatcher(QString::fromUtf16(token.text));
    return true;
}

template <bool edit>
bool powerButton(KeyboardCommands &, frmMain &session, int index) {
    session.bRightButton = edit;
    session.imgPower_Click(index);
    return true;
}

/// At once, in the language last used.
bool checkGrammar(KeyboardCommands &, frmMain &session, int) {
    session.bRightButton = true;
    session.ToolDespatcher(QStringLiteral("chGRA"));
    return true;
}

bool repeat(KeyboardCommands &keys, frmMain &, int) {
    return keys.repeatLastTool();
}

bool selectAll(KeyboardCommands &, frmMain &session, int) {
    select(session.txtCurrent(), 0, session.txtCurrent().length());
    return true;
}

constexpr int ctrlShift = ShiftState::Ctrl | ShiftState::Shift;
constexpr int altShift = ShiftState::Alt | ShiftState::Shift;
constexpr HeldKeys withCtrl{ShiftState::Ctrl,
                            ShiftState::Ctrl}; // without it Backspace has the code of Ctrl-H
constexpr HeldKeys withShift{ShiftState::Shift, ShiftState::Shift};
constexpr HeldKeys withoutShift{ShiftState::Shift, 0};

constexpr KeyRow formKey(KeyGroup group, int code, HeldKeys modifiers, decltype(KeyRow::run) run,
                         const char16_t *does) {
    return {group, Form, code, code, modifiers, run, does};
}

constexpr KeyRow character(KeyGroup group, char16_t letter, HeldKeys modifiers, decltype(KeyRow::run) run,
                           const char16_t *does) {
    return {group, TextCharacter, ctrl(letter), ctrl(letter), modifiers, run, does};
}

constexpr KeyRow powerButtons(int first, int last, int held, decltype(KeyRow::run) run,
                              const char16_t *does) {
    return {PowerButtons, Form, first, last, alone(held), run, does};
}

// F2, F4, F5 and F6 are kept free of commands. Desktops keep some of Alt and a function key for themselves;
// Ctrl and a digit does the same.
constexpr std::array rows{
    formKey(Session, keyCode::D, alone(ShiftState::Alt), call<&frmMain::cmdClose_Click>,
            u"Copy the whole text and close"),
    character(Session, u'C', alone(ctrlShift), call<&frmMain::cmdClose_Click>,
              u"Copy the whole text and close"),
    formKey(Session, keyCode::Q, alone(ShiftState::Alt), call<&frmMain::cmdCancel_Click>,
            u"Close and leave the clipboard as it is"),
    formKey(Session, keyCode::W, alone(ShiftState::Alt), call<&frmMain::imgWordwrap_Click>,
            u"Word wrap on or off"),
    character(Session, u'O', any, call<&frmMain::imgOptions_Click>, u"Options"),
    formKey(Session, keyCode::F1, none, call<&frmMain::imgHelp_Click>, u"Help"),
    character(History, u'Z', withoutShift, call<&frmMain::undoStep>, u"Undo step by step"),
    character(History, u'Z', withShift, call<&frmMain::cmdRedo_Click>, u"Redo"),
    character(History, u'Y', any, call<&frmMain::cmdRedo_Click>, u"Redo"),
    formKey(History, keyCode::Z, alone(ShiftState::Ctrl | ShiftState::Alt), call<&frmMain::undoPowerButton>,
            u"Undo the last PowerButton as a whole"),
    formKey(History, keyCode::F8, none, call<&frmMain::showTextBefore>,
            u"While held: show the text before the last tool"),
    character(History, u'R', any, repeat, u"Repeat the last tool or PowerButton"),
    character(Search, u'F', any, tool<u"edSRC">, u"Search"),
    character(Search, u'H', withCtrl, tool<u"edREP">, u"Search and replace"),
    formKey(Search, keyCode::F3, none, call<&frmMain::FindAgain>, u"Find again"),
    formKey(Search, keyCode::F7, withShift, checkGrammar, u"Check spelling and grammar at once"),
    character(Edit, u'A', any, selectAll, u"Select all"),
    character(Edit, u'U', any, call<&KeyboardCommands::doKBUpperCase>,
              u"Upper case: the selection or the next character"),
    character(Edit, u'L', any, call<&KeyboardCommands::doKBLowerCase>, u"Lower case"),
    character(Edit, u'S', any, call<&KeyboardCommands::doKBSwopCase>, u"Swap upper and lower case"),
    character(Edit, u'K', any, call<&KeyboardCommands::doKBInitCaps>, u"Initial capitals"),
    character(Edit, u'T', any, call<&KeyboardCommands::doKBTranspose>,
              u"Swap the characters on both sides of the caret"),
    formKey(Edit, keyCode::Up, alone(ShiftState::Alt), tool<u"soNUP">, u"Move the lines up"),
    formKey(Edit, keyCode::Down, alone(ShiftState::Alt), tool<u"soNUD">, u"Move the lines down"),
    character(Edit, u'[', any, call<&KeyboardCommands::MatchBracket>, u"Select the matching bracket"),
    character(Edit, u']', any, call<&KeyboardCommands::MatchBracket>, u"Select the matching bracket"),
    KeyRow{Edit, Text, keyCode::Slash, keyCode::Slash, alone(ShiftState::Ctrl),
           call<&KeyboardCommands::describeCharacter>, u"Place and code of the next character"},
    powerButtons(keyCode::F1, keyCode::F8, ShiftState::Alt, powerButton<false>, u"Run PowerButton 1 to 8"),
    powerButtons(keyCode::Digit1, keyCode::Digit8, ShiftState::Ctrl, powerButton<false>,
                 u"Run PowerButton 1 to 8"),
    powerButtons(keyCode::F1, keyCode::F8, altShift, powerButton<true>, u"Edit PowerButton 1 to 8"),
    powerButtons(keyCode::Digit1, keyCode::Digit8, ctrlShift, powerButton<true>, u"Edit PowerButton 1 to 8"),
};

QString keyName(KeyStage stage, int code) {
    if (stage == TextCharacter)
        return QChar(static_cast<char16_t>(code + u'A' - 1));
    if (code >= keyCode::F1)
        return code == keyCode::Slash ? QStringLiteral("/")
                                      : QStringLiteral("F%1").arg(code - keyCode::F1 + 1);
    if (code == keyCode::Up)
        return QStringLiteral("Up");
    return code == keyCode::Down ? QStringLiteral("Down") : QString(QChar(static_cast<char16_t>(code)));
}

} // namespace

QString groupTitle(KeyGroup group) {
    static constexpr std::array titles{u"Program", u"Undo and repeat", u"Search and check",
                                       u"Text",    u"PowerButtons",    u"Window"};
    return QString::fromUtf16(titles.at(static_cast<std::size_t>(group)));
}

std::span<const KeyRow> keyTable() {
    return rows;
}

const KeyRow *findKey(KeyStage stage, int code, int shiftState) {
    const auto *const found = std::find_if(rows.begin(), rows.end(), [&](const KeyRow &row) {
        return row.stage == stage && code >= row.first && code <= row.last && row.modifiers.match(shiftState);
    });
    return found == rows.end() ? nullptr : found;
}

QString keyNames(const KeyRow &row) {
    int held = row.modifiers.held;
    if (row.stage == TextCharacter)
        held |= ShiftState::Ctrl;
    QString names;
    const auto add = [&](int bit, QLatin1StringView name) {
        if ((held & bit) != 0)
            names += name;
    };
    add(ShiftState::Ctrl, QLatin1StringView("Ctrl-"));
    add(ShiftState::Alt, QLatin1StringView("Alt-"));
    add(ShiftState::Shift, QLatin1StringView("Shift-"));
    names += keyName(row.stage, row.first);
    return row.first == row.last ? names : names + QStringLiteral(" to ") + keyName(row.stage, row.last);
}

} // namespace tolvo
