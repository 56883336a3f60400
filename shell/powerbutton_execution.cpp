// SPDX-License-Identifier: MIT
// Running a PowerButton: its Actions one after another, each on the text as the one before left it.
#include "base/conversions.h"
#include "base/strings.h"
#include "powerbuttons/CPowerButtonMethods.h"
#include "powerbuttons/add_step.h"
#include "powerbuttons/circular_check.h"
#include "shell/finder_entries.h"
#include "shell/frmMain.h"
#include "shell/tool_call.h"

namespace tolvo {

namespace {

/// A PowerButton that runs itself, directly or through others. It ends the whole run, not one Action.
class PowerButtonCycle : public Failure {
  public:
    explicit PowerButtonCycle(int index)
        : Failure(failureNumber::nestingTooDeep, QStringLiteral("PowerButton %1 runs itself").arg(index + 1),
                  QStringLiteral("PowerButtonDespatcher")) {}
};

/// A number in a list for as long as this lives.
class Listed {
  public:
    Listed(QList<int> &list, int number) : m_list(list) { m_list.append(number); }
    ~Listed() { m_list.removeLast(); }
    Listed(const Listed &) = delete;
    Listed &operator=(const Listed &) = delete;

  private:
    QList<int> &m_list;
};

} // namespace

template <class Action>
void frmMain::endingCycles(Action &&action) {
    const auto takeBack = [this, text = textState(txtCurrent()), undo = oUndo, history = m_history,
                           status = m_status, dirty = m_dirty, undoEnabled = m_undoEnabled,
                           redoEnabled = m_redoEnabled, cut = m_cuts.pending()] {
        restore(txtCurrent(), text);
        oUndo = undo;
        m_history = history;
        m_undoEnabled = undoEnabled;
        m_redoEnabled = redoEnabled;
        m_services.view.undoRedoChanged(undoEnabled, redoEnabled);
        setStatus(status);
        m_dirty = dirty;
        m_cuts.setPending(cut);
    };
    try {
        action();
    } catch (const PowerButtonCycle &cycle) {
        takeBack();
        ReportError(m_services.boxes, QStringLiteral("frmMain"), QStringLiteral("PowerButtonDespatcher"),
                    cycle);
    }
}

void frmMain::imgPower_Click(int index) {
    guarded(u"imgPower_Click", [&] {
        if (bRightButton) {
            endingCycles([&] { runPowerButton(index); });
            return;
        }
        noteUse(m_services.store, powerButtonId(index));
        endingCycles([&] { runButton(index); });
    });
}

/// What the whole run has changed is one change.
void frmMain::runButton(int index) {
    const std::shared_ptr<CPowerButton> button = m_services.oPowerButtons.Item(index + 1);
    const QString name = button ? button->Name : QString();
    const RunScope run(
        *this, {.name = QStringLiteral("PowerButton %1: ").arg(index + 1) + name, .powerButton = true});
    const bool toChange = button && isToChangeText(*button);
    const bool changed = showingChange(name, [&] { runPowerButton(index); });
    if (button && allSwitchedOff(*button))
        m_services.view.hintChanged(QStringLiteral("All its steps are switched off"));
    else if (!changed && toChange)
        m_services.view.hintChanged(QStringLiteral("Nothing changed"));
}

void frmMain::runActions(const QList<std::shared_ptr<CAction>> &actions,
                         const std::function<void()> &beforeEach) {
    guarded(u"imgPower_Click", [&] {
        endingCycles([&] {
            for (const std::shared_ptr<CAction> &action : actions) {
                beforeEach();
                runAction(*action);
            }
        });
    });
}

void frmMain::runPowerButton(int index) {
    if (bRightButton) {
        refreshPowerButtons();
        m_services.dialogs.editPowerButton(index);
        m_services.view.powerButtonChanged(index);
        refreshPowerButtons(); // what others have changed meanwhile
        txtCurrent().setFocus();
        return;
    }
    if (m_runningButtons.contains(index))
        throw PowerButtonCycle(index);
    const std::shared_ptr<CPowerButton> button = m_services.oPowerButtons.Item(index + 1);
    if (!button)
        throw Failure(failureNumber::invalidArgument,
                      QStringLiteral("There is no PowerButton %1").arg(index + 1));
    if (button->Count() == 0) {
        m_services.boxes.show(
            {.text = QStringLiteral("There are no actions defined for this PowerButton\r\n\r\n"
                                    "Right-click the PowerButton to define a series of actions"),
             .title = QStringLiteral("PowerButton %1").arg(index + 1)});
        return;
    }
    {
        const Listed running(m_runningButtons, index);
        const int count = button->Count();
        for (int position = 1; position <= count; ++position) {
            if (const std::shared_ptr<CAction> action = button->Item(position))
                runAction(*action);
        }
    }
    sLastTool = QStringLiteral("PB%1").arg(index);
    txtCurrent().setFocus();
}

void frmMain::loadPowerButtons() {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        const auto button = std::make_shared<CPowerButton>();
        m_services.oPowerButtons.Add(button, number);
        m_services.oPBMethods.ReadPBSettings(*button, number);
    }
}

void frmMain::initIcons() {
    for (int index = 0; index < CPowerButtonCollection::buttonCount; ++index)
        m_services.view.powerButtonChanged(index);
}

void frmMain::refreshPowerButtons() {
    for (int number = 1; number <= CPowerButtonCollection::buttonCount; ++number) {
        const std::shared_ptr<CPowerButton> shown = m_services.oPowerButtons.Item(number);
        const std::shared_ptr<CPowerButton> stored =
            m_services.oPBMethods.changedInStore(shown ? *shown : CPowerButton(), number);
        if (!stored)
            continue;
        m_services.oPowerButtons.Add(stored, number);
        m_services.view.powerButtonChanged(number - 1);
    }
}

void frmMain::addToPowerButton(int index, const QString &token) {
    guarded(u"addToPowerButton", [&] {
        refreshPowerButtons(); // as another run may have defined them
        const bool added = addStep(m_services.oPowerButtons, m_services.oPBMethods,
                                   m_services.oTools.tool(token), index + 1);
        m_services.view.powerButtonChanged(index);
        setStatus(FillTemplate(added ? QStringLiteral("%0 added to PowerButton %1")
                                     : QStringLiteral("%0 can be added in the editor of PowerButton %1"),
                               {toolName(token), QString::number(index + 1)}));
    });
}

void frmMain::runAction(const CAction &action) {
    const ToolPtr &tool = action.Tool();
    if (!tool || action.switchedOff())
        return;
    const QString token = tool->Token();
    increment(m_services.store, settingKeys.statistics.powerButtonUses.of(token));
    increment(m_services.store, settingKeys.statistics.totalPowerButtonUses.of(token));
    if (!tool->gotDialog()) {
        runTool(tool->Token());
        return;
    }
    switch (action.DlgOption()) {
    case SettingsFrom::Prompt:
        runTool(tool->Token());
        break;
    case SettingsFrom::Custom:
        PowerButtonDespatcher(action);
        break;
    case SettingsFrom::Current:
        // Stays set for the rest of the run: Actions after this one run without their dialogs as well, until
        // the next mouse press. Buttons have been put together with this in mind.
        bRightButton = true;
        runTool(tool->Token());
        break;
    default:
        break;
    }
}

void frmMain::PowerButtonDespatcher(const CAction &action) {
    try {
        runWithSettings(action);
    } catch (const PowerButtonCycle &) {
        throw;
    } catch (const Failure &failure) {
        ReportError(m_services.boxes, QStringLiteral("frmMain"), QStringLiteral("PowerButtonDespatcher"),
                    failure);
    }
}

void frmMain::runWithSettings(const CAction &action) {
    const CTool &tool = *action.Tool();
    pushUndo();
    countTool(tool.Token());
    const ToolRow *row = toolRow(tool.Token());
    if (!row || !row->gotDialog())
        throw Failure(
            failureNumber::noHandler,
            FillTemplate(QStringLiteral("No handler for Tool '%0' (%1)"), {tool.Name(), tool.Token()}),
            QStringLiteral("PowerButtonDespatcher"));
    keepingText([&] {
        if (row->operation.window == SettingsWindow::PowerButton)
            runPowerButton(toInteger(action.Param(powerButtonKey)) - 1);
        else
            runToolRow(*row, toolCall(&action));
    });
    if (row->operation.window != SettingsWindow::PowerButton)
        m_history.noteAction(std::make_shared<CAction>(action));
}

} // namespace tolvo
