// SPDX-License-Identifier: MIT
#include "pipe/arguments.h"

#include <functional>

namespace tolvo {

namespace {

/// "START,LENGTH", both from 0.
bool readSelection(const QString &value, PipeArguments &result) {
    const QStringList parts = value.split(u',');
    bool startOk = false;
    bool lengthOk = false;
    if (parts.size() == 2) {
        result.selStart = parts.at(0).toInt(&startOk);
        result.selLength = parts.at(1).toInt(&lengthOk);
    }
    return startOk && lengthOk && result.selStart >= 0 && result.selLength >= 0;
}

/// Whether an option may have its value after an equals sign.
bool isValued(const QString &option) {
    return option == QLatin1StringView("--select") || option == QLatin1StringView("--spell") ||
           option == QLatin1StringView("--button-file");
}

/// Takes one option; false for an unknown one. `next` gives the argument after it.
bool readOption(const QString &option, PipeArguments &result, const std::function<QString()> &next) {
    if (option == QLatin1StringView("--raw"))
        result.raw = true;
    else if (option == QLatin1StringView("--json"))
        result.json = true;
    else if (option == QLatin1StringView("--batch"))
        result.mode = PipeArguments::Mode::Batch;
    else if (option == QLatin1StringView("--list-tools"))
        result.mode = PipeArguments::Mode::ListTools;
    else if (option == QLatin1StringView("--list-buttons"))
        result.mode = PipeArguments::Mode::ListButtons;
    else if (option == QLatin1StringView("--list-dictionaries"))
        result.mode = PipeArguments::Mode::ListDictionaries;
    else if (option == QLatin1StringView("--spell")) {
        result.mode = PipeArguments::Mode::Spell;
        result.locale = next();
    } else if (option == QLatin1StringView("--complete")) { // for shells; --help leaves it out
        result.mode = PipeArguments::Mode::Complete;
        result.begun = next();
    } else if (option == QLatin1StringView("--help") || option == QLatin1StringView("-h"))
        result.mode = PipeArguments::Mode::Help;
    else if (option == QLatin1StringView("--version"))
        result.mode = PipeArguments::Mode::Version;
    else if (option == QLatin1StringView("--button-file")) {
        result.buttonFile = next();
        if (result.buttonFile.isEmpty())
            result.error = QStringLiteral("--button-file needs a file");
    } else if (option == QLatin1StringView("--select")) {
        if (!readSelection(next(), result))
            result.error = QStringLiteral("--select needs START,LENGTH, two numbers from 0");
    } else {
        return false;
    }
    return true;
}

} // namespace

PipeArguments readArguments(const QStringList &arguments) {
    PipeArguments result;
    bool optionsOver = false;
    for (qsizetype i = 0; i < arguments.size() && result.error.isEmpty(); ++i) {
        const QString &argument = arguments.at(i);
        if (optionsOver || !argument.startsWith(u'-'))
            result.steps += argument;
        else if (argument == QLatin1StringView("--"))
            optionsOver = true;
        else if (const qsizetype sign = argument.indexOf(u'='); isValued(argument.left(sign)) && sign > 0)
            readOption(argument.first(sign), result, [&] { return argument.sliced(sign + 1); });
        else if (!readOption(argument, result, [&] { return arguments.value(++i); }))
            result.error = QStringLiteral("unknown option \"%1\"").arg(argument);
    }
    const bool hasFile = !result.buttonFile.isEmpty();
    if (result.error.isEmpty() && hasFile &&
        (result.mode != PipeArguments::Mode::Steps || !result.steps.isEmpty()))
        result.error = QStringLiteral("--button-file takes the place of the steps");
    if (result.error.isEmpty() && result.mode == PipeArguments::Mode::Steps && result.steps.isEmpty() &&
        !hasFile)
        result.error = QStringLiteral("no steps; see --help");
    if (result.error.isEmpty() && result.mode == PipeArguments::Mode::Batch && !result.steps.isEmpty())
        result.error = QStringLiteral("--batch reads its steps from standard input");
    if (result.error.isEmpty() && result.mode == PipeArguments::Mode::Spell && !result.steps.isEmpty())
        result.error = QStringLiteral("--spell only lists: it runs no steps");
    return result;
}

QString helpText() {
    return QStringLiteral(R"(Usage: tolvo-pipe [OPTION]... STEP...
  or:  tolvo-pipe [OPTION]... --button-file FILE
Reads text on standard input, runs the steps one after another and writes the result on standard output.

A step is a tool, or a tool with settings:
  TOKEN                  such as foTRA; a tool that has settings runs with those last used
  TOKEN:SETTINGS         such as 'foWRP:Width=60, Justify=0, Hanging=0, Tab=True', with all settings of the tool;
                         pbPBT:PowerButton=3 runs your third PowerButton

  --button-file FILE     run the PowerButton of a file that somebody has passed on
  --select START,LENGTH  select a part of the text; counts UTF-16 units from 0, a line end as two
  --raw                  take and give the text as it is; otherwise LF line ends become CR LF for the
                         tools and LF again at the end, unless the text holds a CR
  --json                 print one JSON object with text, selection, status, messages and what
                         each search found, or why it could not ("searches")
  --batch                read requests as JSON Lines and answer each with one line:
                         {"text": "...", "selStart": 0, "selLength": 0, "steps": ["foTRA"], "clipboard": ""}
  --spell LANGUAGE       print the words that the dictionary of a language such as en_GB doesn't know, one
                         to a line: LINE:COLUMN: WORD: SUGGESTION, SUGGESTION...
                         lines and columns (characters) count from 1; the text is only read;
                         with --json one object for each: {"line": 1, "column": 5, "word": "teh",
                         "suggestions": ["the", "ten"]}
  --list-dictionaries    print the languages for --spell
  --list-tools           print token, name and explanation of every tool
  --list-buttons         print number and name of every PowerButton that is defined
  -h, --help             print this text
  --version              print the version

Text is UTF-8. Status texts and messages go to standard error.
Exit code: 0 done, 1 a tool reported a failure or a warning or --spell found a word, 2 wrong usage or bad
input (nothing has been written then), 3 internal error.
)");
}

} // namespace tolvo
