// SPDX-License-Identifier: MIT
#include "platform/headless/help_text.h"

#include "base/application.h"
#include "platform/program_arguments.h"

#include <cstdio>
#include <string_view>

namespace tolvo {

QString versionText(const QString &program) {
    return QStringLiteral("%1 %2\n").arg(program, applicationVersion());
}

void printHelp(const QString &text) {
    std::fputs(text.toUtf8().constData(), stdout);
    std::fflush(stdout);
}

bool answersForHelp(int argc, char **argv, const QString &program, const QString &help) {
    const std::string_view first = argc > 1 ? argv[1] : "";
    if (first != "--help" && first != "-h" && first != "--version")
        return false;
    joinCallersConsole();
    printHelp(first == "--version" ? versionText(program) : help);
    return true;
}

} // namespace tolvo
