// SPDX-License-Identifier: MIT
// The command line of tolvo-pipe.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

/// What the command line asks for.
struct PipeArguments {
    enum class Mode {
        Steps,
        Batch,
        ListTools,
        ListButtons,
        ListDictionaries,
        Spell,
        Complete,
        Help,
        Version
    };
    Mode mode = Mode::Steps;
    QStringList steps;
    QString begun;      ///< of Complete: the step that is being typed
    QString locale;     ///< of Spell: "en_GB"
    QString buttonFile; ///< the PowerButton that runs in place of steps; empty if there is none
    bool raw = false;
    bool json = false;
    int selStart = 0; ///< in UTF-16 units, from 0
    int selLength = 0;
    QString error; ///< why the command line is wrong; empty if it isn't
};

/// Reads `arguments`, which don't hold the program's name. What is wrong with them stands in `error`.
///   {"--select", "0,3", "ccUPP"} gives selLength 3 and the step ccUPP
[[nodiscard]] PipeArguments readArguments(const QStringList &arguments);

/// What --help prints.
[[nodiscard]] QString helpText();

} // namespace tolvo
