// SPDX-License-Identifier: MIT
// The command line of tolvo-pipe.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

struct PipeArguments {
    enum Mode { Steps, Batch, ListTools, Help, Version };
    Mode mode = Steps;
    QStringList steps;
    bool raw = false;
    bool json = false;
    int selStart = 0;
    int selLength = 0;
    QString error; ///< why the command line is wrong; empty if it isn't
};

/// `arguments` without the program's name.
[[nodiscard]] PipeArguments readArguments(const QStringList &arguments);

[[nodiscard]] QString helpText();

} // namespace tolvo
