// SPDX-License-Identifier: MIT
// What single keys do at the caret: case, transposing, brackets, character information.
#include "base/character_names.h"
#include "base/code_page.h"
#include "base/strings.h"
#include "shell/frmMain.h"
#include "shell/keyboard.h"
#include "shell/tool_call.h"

namespace tolvo {

namespace {

/// Changes of up to three characters are too small to be worth an undo state of their own: the button Undo
/// takes them back with whatever comes before. Ctrl-Z takes back each of them.
constexpr int longestWithoutUndo = 3;

bool isPairAt(QStringView text, qsizetype position) {
    return position >= 0 && position + 1 < text.size() &&
           ((text[position].isHighSurrogate() && text[position + 1].isLowSurrogate()) ||
            text.sliced(position, 2) == u"\r\n");
}

/// Units that belong together at a position, and before it: two for a surrogate pair and for a line end.
int unitsAt(QStringView text, qsizetype position) {
    return isPairAt(text, position) ? 2 : 1;
}

int unitsBefore(QStringView text, qsizetype position) {
    return isPairAt(text, position - 2) ? 2 : 1;
}

} // namespace

void KeyboardCommands::selectCharacterAtCaret() {
    TextBox &box = m_session.txtCurrent();
    box.setSelLength(1);
    const QString character = box.SelText();
    if (!character.isEmpty() && character.back().isHighSurrogate()) {
        box.setSelLength(2);
        if (!isPairAt(box.SelText(), 0))
            box.setSelLength(1);
    }
}

template <class Edit>
void KeyboardCommands::quickEdit(int length, Edit edit) {
    const auto keep = [&] { length > longestWithoutUndo ? m_session.pushUndo() : m_session.noteText(); };
    keep();
    edit(m_session.txtCurrent());
    keep();
}

template <class Convert>
void KeyboardCommands::convertAtCaret(Convert convert) {
    quickEdit(m_session.txtCurrent().SelLength(), [&](TextBox &box) {
        if (box.SelLength() == 0)
            selectCharacterAtCaret();
        const QString text = box.SelText();
        if (!text.isEmpty())
            box.setSelText(convert(text)); // the caret is then after it: repeated presses walk along
    });
}

void KeyboardCommands::doKBUpperCase() {
    convertAtCaret([](const QString &text) { return toUpper(text); });
}

void KeyboardCommands::doKBLowerCase() {
    convertAtCaret([](const QString &text) { return toLower(text); });
}

void KeyboardCommands::doKBSwopCase() {
    convertAtCaret([this](const QString &text) { return m_session.oTextMethods.ReverseCase(text); });
}

void KeyboardCommands::doKBInitCaps() {
    TextBox &box = m_session.txtCurrent();
    const int start = box.SelStart();
    const int length = box.SelLength();
    // At the very end of the text there is nothing to select: the tool then takes the whole text, as always
    // without a selection.
    const bool wholeText = length == 0 && start == box.length();
    quickEdit(wholeText ? box.length() : length, [&](TextBox &) {
        if (length == 0)
            selectCharacterAtCaret();
        const int selected = box.SelLength();
        runToolRow(*toolRow(u"ccINC"), m_session.toolCall());
        if (length != 0)
            box.setSelStart(box.SelStart() + box.SelLength());
        else
            box.setSelStart(start + std::max(selected, 1));
    });
    if (length > longestWithoutUndo)
        m_session.setStatus(QString::number(length) + QStringLiteral(" characters: Initial caps"));
}

void KeyboardCommands::doKBTranspose() {
    TextBox &box = m_session.txtCurrent();
    const QString text = box.Text();
    const int caret = box.SelStart();
    if (caret == 0 || caret >= text.size())
        return;
    const int left = unitsBefore(text, caret);
    const int right = unitsAt(text, caret);
    quickEdit(2, [&](TextBox &) {
        select(box, caret - left, left + right);
        box.setSelText(text.sliced(caret, right) + text.sliced(caret - left, left));
        box.setSelStart(caret + right);
    });
}

namespace {

constexpr QStringView brackets = u"([{}])<>";
constexpr QStringView partners = u")]}{[(><";
constexpr QStringView openingOnes = u"([{<";

/// The position of the partner of the bracket at `position`, both from 0; -1 if there is none. Each kind of
/// bracket is paired by itself, angle brackets with no regard to what they mean.
qsizetype partnerOf(QStringView text, qsizetype position, QChar bracket, QChar partner) {
    const int step = openingOnes.contains(partner) ? -1 : 1;
    int depth = 0;
    for (qsizetype i = position + step; i >= 0 && i < text.size(); i += step) {
        if (text[i] == bracket)
            ++depth;
        else if (text[i] == partner && depth-- == 0)
            return i;
    }
    return -1;
}

} // namespace

void KeyboardCommands::MatchBracket() {
    TextBox &box = m_session.txtCurrent();
    const QString text = box.Text();
    // The bracket may stand on either side of the caret; the right one is tried first.
    qsizetype position = box.SelStart();
    const auto isBracketAt = [&](qsizetype i) { return i < text.size() && brackets.contains(text.at(i)); };
    if (!isBracketAt(position) && position > 0)
        --position;
    if (!isBracketAt(position))
        return;
    const QChar bracket = text.at(position);
    const QChar partner = partners.at(brackets.indexOf(bracket));
    const qsizetype found = partnerOf(text, position, bracket, partner);
    if (found >= 0)
        select(box, static_cast<int>(found), 1);
    else
        m_session.say(FillTemplate(QStringLiteral("No matching %0"), {QString(partner)}));
}

namespace {

/// One line for each code point, with its name. The code above them knows 256 characters only.
QString unicodeLines(const QList<char32_t> &character) {
    constexpr qsizetype most = 8;
    QString lines;
    for (const char32_t one : character.first(std::min(most, character.size())))
        lines += QStringLiteral("\r\n Unicode: ") + characterCode(one) + u' ' + characterName(one);
    if (character.size() > most)
        lines += QStringLiteral("\r\n and %1 more").arg(character.size() - most);
    return lines;
}

} // namespace

void KeyboardCommands::ShowCharacterInfo() {
    TextBox &box = m_session.txtCurrent();
    const QString text = box.Text();
    const int caret = box.SelStart();
    int row = 0;
    int column = 0;
    m_session.oTextMethods.getColRow(text, caret, row, column);
    const int code = toAnsi(text.at(caret).unicode());
    m_session.services().boxes.show(
        {.text = QStringLiteral("Position: Row %1, column %2\r\n\r\n").arg(row).arg(column) +
                 QStringLiteral("Character: ") + text.sliced(caret, unitsAt(text, caret)) +
                 QStringLiteral("\r\n Decimal: %1\r\n Hex: ").arg(code) +
                 QString::number(code, 16).toUpper() + unicodeLines(characterAt(text, caret)),
         .title = QStringLiteral("Character information")});
}

} // namespace tolvo
