// SPDX-License-Identifier: MIT
// The command line of tolvo.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

/// What the command line asks for.
struct Arguments {
    enum class Mode { Session, Command, Help, Version };
    Mode mode = Mode::Session;
    QString button = {}; ///< of a Command: number or name of a PowerButton, or empty
    QString tool = {};   ///< of a Command without a button: TOKEN or TOKEN:SETTINGS
    QString error = {};  ///< why the command line is wrong; empty if it isn't
};

/// Reads `arguments`, which don't hold the program's name. What begins with one hyphen, and words of their
/// own, belong to the toolkit.
///   {"--tool", "foTRA"} and {"--tool=foTRA"} give the Command with the tool foTRA
///   {"-platform", "xcb"} gives a Session
[[nodiscard]] Arguments readArguments(const QStringList &arguments);

/// What --help prints.
[[nodiscard]] QString helpText();

} // namespace tolvo
