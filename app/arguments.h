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
    QString file = {};   ///< of a Session: a shared PowerButton that it begins with, or empty
    QString error = {};  ///< why the command line is wrong; empty if it isn't
};

/// Reads `arguments`, which don't hold the program's name. What begins with one hyphen belongs to the
/// toolkit, and so does the word after it unless it ends as files of PowerButtons do.
///   {"--tool", "foTRA"} and {"--tool=foTRA"} give the Command with the tool foTRA
///   {"-platform", "xcb"} gives a Session, {"mail.tolvobutton"} one with a file
[[nodiscard]] Arguments readArguments(const QStringList &arguments);

/// What --help prints.
[[nodiscard]] QString helpText();

} // namespace tolvo
