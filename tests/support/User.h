// SPDX-License-Identifier: MIT
// A user with a session, for stories. Texts are pictures.
#pragma once

#include "shell/headless/HeadlessSession.h"
#include "shell/keyboard.h"
#include "tests/support/boxes.h"
#include "tests/support/pictures.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace tolvo::test {

[[nodiscard]] TextState stateOf(const QString &picture);
/// The catalogue of the source tree, and the folder that it lies in.
[[nodiscard]] const Catalogue &realCatalogue();
[[nodiscard]] QString dataFolder();

class User : public HeadlessWindows {
  public:
    /// Begins with a text on the clipboard.
    explicit User(const QString &picture = {});

    void startsWith(const QString &picture);
    void runs(const QString &token) { session.ToolDespatcher(token); }
    /// With the settings last used, as a right click does.
    void runsAgain(const QString &token);
    /// Keys as the window hands them on; both stages.
    void pressesKey(int code, int shiftState = 0);
    void presses(char letter, int shiftState = ShiftState::Ctrl);
    /// Replaces the selection, as typing does.
    void types(const QString &text) { inUse().type(text); }
    /// Character by character, "<" for Backspace, ">" for Delete.
    void typesKeys(const QString &strokes);
    void pastes(const QString &text) { inUse().type(text, true); }
    void waits(int milliseconds) { headless.clock.time = headless.clock.time.addMSecs(milliseconds); }
    void sees(const QString &picture, const QString &status);
    void sees(const QString &picture);
    /// The oldest box that nobody has named yet has this text (or these words in it).
    void isTold(const QString &text);
    void isToldSomethingLike(const QString &words);

    /// Action by token, dialog option and details.
    [[nodiscard]] static std::shared_ptr<CAction>
    action(const QString &token, SettingsFrom option = SettingsFrom::Prompt, const QString &details = {});
    void defines(int number, const QList<std::shared_ptr<CAction>> &actions);
    [[nodiscard]] QString counter(const QString &section, const QString &key);

    void undoRedoChanged(bool undoEnabled, bool redoEnabled) override {
        canUndo = undoEnabled;
        canRedo = redoEnabled;
    }

    void hintChanged(const QString &text) override { hint = text; }

    // What the windows are asked
    CloseAnswer confirmClose(const QString &prompt) override;
    void showOptions() override { opened += "Options"; }
    void showAbout() override { opened += "About"; }
    void editPowerButton(int index) override { opened += QString("editor %1").arg(index); }
    void powerButtonChanged(int index) override { repainted += index; }
    void endSession() override { opened += "(hidden)"; }
    bool askToolSettings(ToolSettings &settings) override;
    void setSearchText(const QString &text) override { searchRequest.find = text; }
    void setSpecialChars(bool on) override { searchRequest.specialChars = on; }
    void expandDialog() override { opened += "more"; }
    void showDialog(bool replace) override { opened += replace ? "replace" : "search"; }
    void cmdSearch_Click() override { opened += "next"; }
    SearchRequest request() override { return searchRequest; }
    bool CheckSpelling(ProofingHost &, QString &text, int language, bool grammar) override;
    int GetLangID(int, bool) override { return chosenLanguage; }

    QStringList opened; ///< windows in the order in which they opened
    CloseAnswer closeAnswer = CloseAnswer::Cancel;
    QList<int> repainted; ///< indices of PowerButtons
    bool cancelsDialogs = false;
    QString hint;         ///< beside the status
    bool canUndo = false; ///< the two buttons
    bool canRedo = false;
    int chosenLanguage = 2057;
    QString corrected;           ///< what the walk makes of a text; null: it ends without a correction
    SearchRequest searchRequest; ///< what the search window holds

  private:
    [[nodiscard]] MemoryTextBox &inUse() {
        return session.bWordWrap ? headless.txtTextWW : headless.txtText1;
    }

    QTemporaryDir m_folder; // where the personal word list comes to lie

  public:
    SettingsStore store{":memory:"};
    FileExtensions extensions;
    NamedBoxes boxes;
    HeadlessSession headless;
    frmMain &session;
    KeyboardCommands keys;
};

} // namespace tolvo::test
