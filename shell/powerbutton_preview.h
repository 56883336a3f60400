// SPDX-License-Identifier: MIT
// What the steps of a PowerButton would make of a text, without touching it.
#pragma once

#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"
#include "search/match_copy.h"
#include "shell/text_state.h"
#include "text/file_extensions.h"
#include "text/tool_settings.h"

#include <QList>
#include <functional>

namespace tolvo {

class frmMain;

/// All that a run of some steps depends on, by value: it may be taken to another thread.
struct PowerButtonTrial {
    QList<CAction> steps = {};
    QList<CPowerButton> buttons = {}; ///< the eight, which steps may run; their Actions are copies too
    TextState text = {};
    int capacity = 0;
    bool pastes = false;                   ///< a step may take text from the clipboard
    QString clipboard = {};                ///< that text; up to the caller, as a clipboard may take its time
    QList<ToolSettings> lastSettings = {}; ///< of the tools that run with those used last
    SearchRequest lastSearch = {};
    MatchCopy lastCopy = {}; ///< but for its search
    QString topLevelDomains = {};
    FileExtensions extensions{};
    const Catalogue *catalogue = nullptr; ///< only read, outlives the trial
};

/// The first `count` steps of a button of the session, on its text and selection. The search window is
/// asked for if a step runs with what it holds. `button` may be one that is being edited.
[[nodiscard]] PowerButtonTrial powerButtonTrial(frmMain &session, const CPowerButton &button, int count);

struct StepResult {
    enum class Kind {
        Ran,
        Asks,  ///< it needs the user; the steps after it run on the text as it is
        Blank, ///< it has no tool yet
        SwitchedOff,
        NotReached ///< a step before it has failed, which ends the run
    };
    Kind kind = Kind::NotReached;
    TextState before = {};
    TextState after = {};
    QString says = {}; ///< the messages of the step, else its status
};

/// Runs the steps as a click on their button would, in a session of their own, and gives a result for each.
/// `cancelled` is asked between steps and in long searches; once it is true, any result may come.
[[nodiscard]] QList<StepResult> tryPowerButton(const PowerButtonTrial &trial,
                                               const std::function<bool()> &cancelled = {});

} // namespace tolvo
