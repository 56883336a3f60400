// SPDX-License-Identifier: MIT
// The session: text from the clipboard, text to the clipboard, undo, word wrap, fonts.
#include "shell/frmMain.h"

#include "base/application.h"
#include "base/numbers.h"
#include "base/strings.h"
#include "platform/headless/clipboard_line_ends.h"
#include "platform/text_positions.h"
#include "preferences/options.h"
#include "shell/search_tools.h"
#include "shell/selection_tools.h"
#include "shell/text_file.h"
#include "text/top_level_domains.h"

namespace tolvo {

namespace {

/// A text of exactly the limit fits, and still counts as too long.
bool tooLong(const QString &text) {
    return text.size() >= textLimit;
}

} // namespace

void frmMain::useWordOptions(const WordOptions &options) {
    oTextMethods.setTopLevelDomains(options.fullDomainList ? longTopLevelDomains() : shortTopLevelDomains());
    m_services.extensions.setUserExtensions(options.extensions);
}

// Text from the clipboard

void frmMain::useTextBox(bool wrapped) {
    bWordWrap = wrapped;
    m_txtCurrent = wrapped ? &m_txtTextWW : &m_txtText1;
    m_services.view.showTextBox(wrapped);
}

void frmMain::takeClipboard() {
    if (const std::optional<QString> text = answered(m_services.clipboard.takeText(), *this))
        takeText(*text, tooLong(*text));
}

std::optional<QString> frmMain::clipboardText(bool selection) {
    Clipboard &clipboard = m_services.clipboard;
    return answered(selection ? clipboard.readSelection() : clipboard.readText(), *this);
}

void frmMain::takeText(const QString &text, bool tellOfCut) {
    if (tellOfCut)
        sayTooLong(QStringLiteral("The text on the Clipboard"), text.size());
    txtCurrent().setText(cutToRoom(text, txtCurrent().capacity(), 0).toString()); // as the box would cut it
}

void frmMain::sayTooLong(const QString &what, qsizetype length) {
    say(FillTemplate(QStringLiteral("%0 exceeds the number of characters that Tolvo\r\n"
                                    "can process (%1). There are %2 characters.\r\n"
                                    "Tolvo has truncated the text. Some characters have been lost."),
                     {what, groupedNumber(textLimit), groupedNumber(length)}),
        BoxIcon::Exclamation);
}

void frmMain::takeFiles(const QStringList &paths) {
    if (paths.isEmpty())
        return;
    guarded(u"takeFiles", [&] {
        setStatus({});
        const TextFile file = readTextFile(paths.front());
        if (!file.text) {
            say(file.refusal, BoxIcon::Exclamation);
            return;
        }
        pushUndo();
        const RunScope run(*this, {.name = QStringLiteral("Text of a file")});
        const QString text = ClipboardLineEnds::comeIn(*file.text);
        if (tooLong(text))
            sayTooLong(QStringLiteral("The text of the file"), text.size());
        takeText(text, false);
        noteText();
        const QString taken = QStringLiteral("Text taken from ") + file.name;
        setStatus(paths.size() == 1 ? taken : taken + QStringLiteral(", the first of the files"));
    });
}

void frmMain::beginWithClipboard() {
    takeClipboard();
    beginWithText();
}

void frmMain::beginWithText() {
    pushUndo();
    m_dirty = false;
}

void frmMain::cmdRefresh_Click() {
    guarded(u"cmdRefresh_Click", [this] {
        const std::optional<QString> text = answered(m_services.clipboard.takeText(), *this);
        if (!text)
            return;
        pushUndo();
        const RunScope run(*this, {.name = QStringLiteral("Refresh")});
        takeText(*text, tooLong(*text));
        noteText();
        m_dirty = false;
        setStatus(QStringLiteral("Text retrieved from clipboard"));
    });
}

bool frmMain::mayPaste() {
    const std::optional<QString> text = clipboardText();
    if (!text)
        return false;
    const qint64 present = txtCurrent().length();
    const qint64 coming = text->size();
    // The selection that the paste would replace is not subtracted.
    if (present + coming < textLimit)
        return true;
    say(FillTemplate(QStringLiteral("You cannot paste this text.\r\n\r\n"
                                    "The current text (%0 characters) plus what is on the clipboard\r\n"
                                    "exceeds the number of characters that Tolvo can process (%1).\r\n"
                                    "There are %2 characters on the clipboard."),
                     {groupedNumber(present), groupedNumber(textLimit), groupedNumber(coming)}),
        BoxIcon::Exclamation);
    return false;
}

// The end

void frmMain::cmdClose_Click() {
    guarded(u"cmdClose_Click", [this] {
        m_services.clipboard.writeText(txtCurrent().Text());
        beep();
        m_dirty = false;
        hideWindow();
    });
}

void frmMain::cmdCancel_Click() {
    guarded(u"cmdCancel_Click", [this] {
        setStatus({});
        if (!m_dirty) {
            hideWindow();
            return;
        }
        switch (askAboutChanges()) {
        case CloseAnswer::Discard:
            m_dirty = false;
            hideWindow();
            break;
        case CloseAnswer::CopyAndClose:
            cmdClose_Click();
            break;
        case CloseAnswer::Cancel:
            break;
        }
    });
}

bool frmMain::queryUnload() {
    if (m_dirty) {
        const CloseAnswer answer = askAboutChanges();
        if (answer == CloseAnswer::Cancel)
            return false;
        if (answer == CloseAnswer::CopyAndClose) {
            cmdClose_Click();
            return bSessionOver; // a failure on the way to the clipboard keeps the text in its window
        }
    }
    bSessionOver = true;
    return true;
}

CloseAnswer frmMain::askAboutChanges() {
    return m_services.dialogs.confirmClose(QStringLiteral("Changes have been made to the text"));
}

void frmMain::hideWindow() {
    bSessionOver = true;
    m_services.view.endSession();
}

// Undo

void frmMain::cmdUndo_Click() {
    guarded(u"cmdUndo_Click",
            [this] { showOtherState([this](TextState &state) { return m_history.undoState(state); }); });
}

void frmMain::cmdRedo_Click() {
    guarded(u"cmdRedo_Click",
            [this] { showOtherState([this](TextState &state) { return m_history.redo(state); }); });
}

void frmMain::undoStep() {
    guarded(u"undoStep",
            [this] { showOtherState([this](TextState &state) { return m_history.undoStep(state); }); });
}

void frmMain::showOtherState(const std::function<bool(TextState &)> &walk) {
    setStatus({});
    TextState state = textState(txtCurrent());
    if (!walk(state))
        return;
    restore(txtCurrent(), state);
    m_dirty = true; // also when the text is again the one that came from the clipboard
}

// Word wrap and fonts

void frmMain::imgWordwrap_Click() {
    guarded(u"imgWordwrap_Click", [this] { toggleWordwrap(!bWordWrap); });
}

void frmMain::toggleWordwrap(bool bOn) {
    bWordWrap = bOn;
    set(m_services.store, settingKeys.preferences.wordWrap, bOn);
    TextBox &target = bOn ? m_txtTextWW : m_txtText1;
    TextBox &source = bOn ? m_txtText1 : m_txtTextWW;
    if (m_txtCurrent != &target) {
        const bool dirty = m_dirty;
        m_txtCurrent = &target;
        target.setText(source.Text());
        // The name alone: the size may then differ from what the Options say.
        Font font = m_services.view.textFont(bOn);
        font.name = m_services.view.textFont(!bOn).name;
        m_services.view.setTextFont(bOn, font);
        select(target, source.SelStart(), source.SelLength());
        source.setText({});
        m_services.view.showTextBox(bOn);
        m_dirty = dirty; // moving the text between the boxes is no change
    }
    target.setFocus();
    setStatus(bOn ? QStringLiteral("Word wrap now ON") : QStringLiteral("Word wrap now OFF"));
}

void frmMain::imgOptions_Click() {
    guarded(u"imgOptions_Click", [this] {
        setStatus({});
        if (bRightButton)
            swapFonts();
        else
            m_services.dialogs.showOptions();
    });
}

void frmMain::swapFonts() {
    bFontUseProp = !bFontUseProp;
    applyFonts();
    set(m_services.store, settingKeys.preferences.useProportional, bFontUseProp);
}

void frmMain::applyFonts() {
    m_services.view.setTextFont(m_txtCurrent == &m_txtTextWW, aFonts.at(bFontUseProp ? 0 : 1));
}

Font frmMain::currentFont() const {
    return m_services.view.textFont(m_txtCurrent == &m_txtTextWW);
}

// Search

void frmMain::OpenSearchDialog(bool bReplace) {
    openSearchDialog(m_services.dialogs.searchWindow(), txtCurrent(), bReplace);
}

void frmMain::FindAgain() {
    guarded(u"FindAgain", [this] {
        SearchWindow &window = m_services.dialogs.searchWindow();
        if (window.request().find.isEmpty())
            OpenSearchDialog(false);
        else
            window.cmdSearch_Click();
    });
}

void frmMain::RunSearchAction(bool bReplace, const CAction &action) {
    runSearchAction(oSearch, bReplace, action);
}

// About and help

void frmMain::imgAbout_Click() {
    guarded(u"imgAbout_Click", [this] {
        setStatus({});
        m_services.dialogs.showAbout();
    });
}

void frmMain::imgHelp_Click() {
    guarded(u"imgHelp_Click", [this] {
        setStatus({});
        say(QStringLiteral("Help is not implemented yet"));
    });
}

} // namespace tolvo
