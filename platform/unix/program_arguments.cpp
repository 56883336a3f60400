// SPDX-License-Identifier: MIT
#include "platform/program_arguments.h"

namespace tolvo {

QStringList programArguments(int argc, char **argv) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words += QString::fromLocal8Bit(argv[i]);
    return words;
}

void joinCallersConsole() {
}

} // namespace tolvo
