// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace tolvo {

/// The words after the program's name on its command line, for a program that has no QCoreApplication yet.
/// The arguments are main's. On Windows, whose main sees only the letters of one code page, they count for
/// nothing: the system is asked.
[[nodiscard]] QStringList programArguments(int argc, char **argv);

/// A program with windows has no console of its own on Windows: lets its standard output and standard error
/// appear where it was started from, if they lead nowhere else. A no-op elsewhere.
void joinCallersConsole();

} // namespace tolvo
