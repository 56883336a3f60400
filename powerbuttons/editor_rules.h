// SPDX-License-Identifier: MIT
// The rules of the PowerButton editor, without its window: what may be done when, and the messages to the
// user.
#pragma once

#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/action_settings.h"
#include "powerbuttons/step_undo.h"

#include <QString>
#include <memory>
#include <optional>

namespace tolvo {

/// One editing of one PowerButton, on the live object: cancel() takes it back by reading the store again. The
/// window shows form() after every call and hands in what the user did.
class EditorRules {
  public:
    /// What the window shows.
    struct Form {
        QString frameCaption; ///< " Action 2 of 5"
        QString toolName;     ///< empty for a blank Action
        QString toolTip;
        QString details;
        SettingsFrom option = SettingsFrom::Prompt; ///< a number from the store: none is chosen
        bool leftVisible = false;
        bool rightVisible = false;
        bool deleteVisible = false;
        bool examplesVisible = false;
        bool optionsEnabled = false; ///< prompt and current
        bool customEnabled = false;  ///< custom, and the button for the settings
    };

    EditorRules(CPowerButtonCollection &buttons, CPowerButtonMethods &methods, const Catalogue &tools,
                MessageBoxes &boxes, ActionSettings &settings);

    /// Begins with the button of an index from 0. A button without Actions gets a blank one.
    void init(int index);

    /// Of the button, from 1.
    [[nodiscard]] int number() const { return m_number; }
    /// "Edit PowerButton 3"
    [[nodiscard]] QString caption() const;
    [[nodiscard]] CPowerButton &button() const { return *m_button; }
    /// Of the current Action, from 1.
    [[nodiscard]] int position() const { return m_position; }
    [[nodiscard]] Form form() const;

    /// A leaf of the tool tree was chosen: a blank Action takes the tool at once, another asks first.
    void chooseTool(const QString &token);
    /// Chooses it on the form; the Action takes it when the user leaves it or saves.
    void chooseOption(SettingsFrom option);
    /// Asks for the settings of the current Action; new ones select "custom".
    void chooseSettings();

    // Each of these validates the current Action first and says what is missing; false if it stays.
    bool goLeft();
    bool goRight();
    /// Whether the menu for adding may open.
    bool mayAdd();

    // Once mayAdd() has allowed it. The new, blank Action becomes the current one.
    void addBefore();
    void addAfter();
    void addAtEnd();

    /// Asks, unless the Action is blank.
    void deleteAction();

    // The list of the Actions (editor_steps.cpp). Positions count from 1; an unknown one changes nothing.

    /// Makes an Action the current one; validates the one before first, false if that stays.
    bool goTo(int position);
    /// Moves an Action to another place among the others, where it is the current one. Leaving another one
    /// for it validates that first; false if all stays.
    bool moveStep(int from, int to);
    /// Takes the current Action out without a question, as undo() brings it back.
    void removeStep();
    /// Switches an Action off, or on again; the current one stays current.
    void switchOff(int position, bool off);
    /// Keeps a copy of the current Action for pasteStep(), in this button or another one; false for a blank.
    bool copyStep();
    bool cutStep();
    /// Puts the copy after the current Action, or in the place of a blank one, and makes it the current one.
    bool pasteStep();
    /// Puts a second one after the current Action.
    bool duplicateStep();
    /// Takes the latest change of Actions or icon back, or brings it back; false if there is none.
    bool undo() { return walkUndo(&StepUndo::back); }
    bool redo() { return walkUndo(&StepUndo::forward); }
    /// Changes from here on are taken back by themselves. The window calls it before it sets the icon.
    void noteForUndo() { m_undo.note(state()); }

    enum class Saved { Yes, NoAction, NoName };
    /// Validates, then stores the button under the name. NoName: the window puts the focus there.
    Saved save(const QString &name);
    /// Takes back everything since the last save.
    void cancel();
    /// Asks, then puts an undefined button in place of this one, in the store too. True: the editor closes.
    bool destroy();
    /// Takes Actions and icon of a ready-made button; the name is up to the window.
    void loadExample(const CPowerButton &example);

  private:
    [[nodiscard]] CAction &current() const { return *m_button->Item(m_position); }
    void moveTo(int position);
    void keep();
    bool validate();
    bool validateTarget();
    [[nodiscard]] bool hasPosition(int position) const {
        return position >= 1 && position <= m_button->Count();
    }
    [[nodiscard]] StepsState state() const;
    bool walkUndo(bool (StepUndo::*walk)(StepsState &));
    void putAfterCurrent(const CAction &action);
    void say(const QString &text) { m_boxes.show({text}); }

    CPowerButtonCollection &m_buttons;
    CPowerButtonMethods &m_methods;
    const Catalogue &m_tools;
    MessageBoxes &m_boxes;
    ActionSettings &m_settings;

    std::shared_ptr<CPowerButton> m_button;
    int m_number = 1;
    int m_position = 1;
    SettingsFrom m_option = SettingsFrom::Prompt; ///< on the form, not yet in the Action
    StepUndo m_undo;
    std::optional<CAction> m_copy; ///< what is pasted
};

/// What dlgChoosePB lets choose: a defined button other than the one that is being edited.
[[nodiscard]] bool mayChoosePowerButton(const CPowerButtonCollection &buttons, int number, int own);

} // namespace tolvo
