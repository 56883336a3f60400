// SPDX-License-Identifier: MIT
// What a program answers to --help and --version, before anything of the toolkit exists. The manual pages are
// made of these texts.
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// What --version prints: versionText("Tally.exe") is "Tally.exe 1.0.0" and a line end.
[[nodiscard]] QString versionText(const QString &program);

/// Writes the text to standard output.
void printHelp(const QString &text);

/// For a program without options of its own: answers --help (or -h) and --version if that is the first
/// argument. True if it has answered; there is nothing left to do then.
[[nodiscard]] bool answersForHelp(int argc, char **argv, const QString &program, const QString &help);

} // namespace tolvo
