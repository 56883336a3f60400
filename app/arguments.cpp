// SPDX-License-Identifier: MIT
#include "app/arguments.h"

#include "powerbuttons/button_file.h"

namespace tolvo {

namespace {

/// Takes the value of --button or --tool.
void takeCommand(const QString &option, const QString &value, Arguments &result) {
    if (value.isEmpty())
        result.error = QStringLiteral("%1 needs a value").arg(option);
    else if (result.mode == Arguments::Mode::Command)
        result.error = QStringLiteral("one of --button and --tool, and only once");
    result.mode = Arguments::Mode::Command;
    (option == QLatin1StringView("--tool") ? result.tool : result.button) = value;
}

bool belongsToToolkit(const QStringList &arguments, qsizetype at) {
    const QString &word = arguments.at(at);
    const bool afterOption = at > 0 && arguments.at(at - 1).startsWith(u'-');
    return word.startsWith(u'-') || word.isEmpty() ||
           (afterOption && !word.endsWith(buttonFileEnding, Qt::CaseInsensitive));
}

void takeFile(const QString &path, Arguments &result) {
    if (!result.file.isEmpty())
        result.error = QStringLiteral("only one file at a time");
    result.file = path;
}

} // namespace

Arguments readArguments(const QStringList &arguments) {
    Arguments result;
    for (qsizetype i = 0; i < arguments.size() && result.error.isEmpty(); ++i) {
        const QString option = arguments.at(i).section(u'=', 0, 0);
        const bool holdsValue = option.size() < arguments.at(i).size();
        if (option == QLatin1StringView("--button") || option == QLatin1StringView("--tool"))
            takeCommand(option, holdsValue ? arguments.at(i).section(u'=', 1) : arguments.value(++i), result);
        else if (option == QLatin1StringView("--help") || option == QLatin1StringView("-h"))
            return {.mode = Arguments::Mode::Help};
        else if (option == QLatin1StringView("--version"))
            return {.mode = Arguments::Mode::Version};
        else if (option.startsWith(QLatin1StringView("--")))
            result.error = QStringLiteral("unknown option \"%1\"; --help lists them").arg(option);
        else if (!belongsToToolkit(arguments, i))
            takeFile(arguments.at(i), result);
    }
    if (result.error.isEmpty() && result.mode == Arguments::Mode::Command && !result.file.isEmpty())
        result.error = QStringLiteral("--button and --tool take no file");
    return result;
}

QString helpText() {
    return QStringLiteral(R"(Usage: tolvo [FILE]
  or:  tolvo --button BUTTON
  or:  tolvo --tool STEP
Cleans up text on its way through the clipboard: opens a window with the clipboard's text, or runs one PowerButton or tool on the clipboard without a window. With a FILE (.tolvobutton) the window offers to load the PowerButton in it.

  --button BUTTON  run a PowerButton, given by its number from 1 to 8 or by its name
  --tool STEP      run a tool: TOKEN such as foTRA, with the settings last used, or
                   TOKEN:SETTINGS as tolvo-pipe takes it; 'tolvo-pipe --list-tools' lists them
  -h, --help       print this text
  --version        print the version

Without a window, a notification says what happened and offers to undo it; without a notification service, only standard error says so. After a failure the clipboard is as it was.

Exit status: 0 done, 1 it could not be done, 2 wrong usage.
)");
}

} // namespace tolvo
