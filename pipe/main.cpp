// SPDX-License-Identifier: MIT
// tolvo-pipe: the same tools without a window, between standard input and standard output.
#include "base/failure.h"
#include "base/paths.h"
#include "pipe/arguments.h"
#include "pipe/batch.h"
#include "pipe/completion.h"
#include "pipe/large_texts.h"
#include "pipe/session.h"
#include "pipe/spelling.h"
#include "pipe/streams.h"
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/MemoryTextBox.h"
#include "platform/headless/clipboard_line_ends.h"
#include "platform/headless/help_text.h"
#include "platform/program_folders.h"
#include "preferences/settings_store.h"

#include <QCoreApplication>
#include <QFile>
#include <optional>

namespace tolvo {

namespace {

namespace exitCode {
constexpr int done = 0;
constexpr int warned = 1;
constexpr int badUsage = 2;
constexpr int internalError = 3;
} // namespace exitCode

void complain(const QString &text) {
    ConsoleBoxes().say(text);
}

/// Throws BadRequest for a file that can't be taken.
SharedButtons buttonOf(const PipeArguments &arguments, const Catalogue &catalogue) {
    if (arguments.buttonFile.isEmpty())
        return {};
    SharedButtons button = loadButtonFile(arguments.buttonFile, catalogue);
    if (!button.trouble.isEmpty())
        throw BadRequest(arguments.buttonFile + QStringLiteral(": ") + button.trouble);
    return button;
}

int runSteps(const HeadlessWorld &world, const PipeArguments &arguments) {
    ConsoleBoxes console;
    RecordingBoxes silent;
    ClipboardLineEnds lineEnds;
    SharedButtons button = buttonOf(arguments, world.catalogue);
    const PipeRequest request{.text =
                                  arguments.raw ? readStandardInput() : lineEnds.takeIn(readStandardInput()),
                              .selStart = arguments.selStart,
                              .selLength = arguments.selLength,
                              .steps = arguments.steps,
                              .button = std::move(button),
                              .capacity = MemoryTextBox::unlimited};
    const auto sayStatus = [&](const QString &status) {
        if (!arguments.json)
            console.say(status);
    };
    const PipeReply reply =
        runPipe(world, request, arguments.json ? silent : static_cast<RecordingBoxes &>(console), sayStatus);
    if (arguments.json)
        writeStandardOutput(replyLine(reply) + u'\n');
    else
        writeStandardOutput(
            reply.text, [&](const QString &piece) { return arguments.raw ? piece : lineEnds.goOut(piece); });
    if (reply.statistics && !arguments.json) {
        for (const StatisticsRow &row : reply.statistics->rows)
            console.say(row.name + u'\t' + row.fullText + u'\t' + row.selection);
    }
    return reply.warned() ? exitCode::warned : exitCode::done;
}

int runBatch(const HeadlessWorld &world) {
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw Failure(failureNumber::fileAccess, QStringLiteral("standard input can't be read"));
    for (;;) {
        const QByteArray line = input.readLine();
        if (line.isEmpty())
            return exitCode::done;
        if (!line.trimmed().isEmpty())
            writeStandardOutput(answerRequest(world, line) + u'\n');
    }
}

void listTools(const Catalogue &catalogue) {
    QString list;
    for (const ToolPtr &tool : catalogue.tools()) {
        if (tool->isHeading())
            list += QStringLiteral("\n# %1\n").arg(tool->Name());
        else if (tool->Token() != unknownToolToken)
            list += tool->Token() + u'\t' + tool->Name() + u'\t' + tool->Tooltip() + u'\n';
    }
    writeStandardOutput(list.startsWith(u'\n') ? list.sliced(1) : list);
}

void listLines(const QStringList &lines) {
    for (const QString &line : lines)
        writeStandardOutput(line + u'\n');
}

int listWords(const HeadlessWorld &world, const PipeArguments &arguments) {
    const bool found =
        listMisspellings(world, {.locale = arguments.locale, .json = arguments.json}, readStandardInput(),
                         [](const QString &line) { writeStandardOutput(line + u'\n'); });
    return found ? exitCode::warned : exitCode::done;
}

/// What a mode lists that takes no text; nothing for any other mode.
std::optional<QStringList> listOf(const HeadlessWorld &world, const PipeArguments &arguments) {
    switch (arguments.mode) {
    case PipeArguments::Mode::Complete:
        return completions(world, arguments.begun);
    case PipeArguments::Mode::ListButtons:
        return buttonList(world);
    case PipeArguments::Mode::ListDictionaries:
        return dictionaryList(world);
    default:
        return std::nullopt;
    }
}

int runWithCatalogue(const PipeArguments &arguments) {
    const QString folder = programFolders().data;
    const Catalogue catalogue = Catalogue::read(sAppPath(folder) + Catalogue::fileName);
    if (arguments.mode == PipeArguments::Mode::ListTools) {
        listTools(catalogue);
        return exitCode::done;
    }
    FileExtensions extensions(sAppPath(folder) + QStringLiteral("FileExtensions.txt"));
    SettingsStore store(SettingsStore::defaultPath());
    const HeadlessWorld world{
        .store = store, .catalogue = catalogue, .extensions = extensions, .dataFolder = folder};
    if (const auto lines = listOf(world, arguments)) {
        listLines(*lines);
        return exitCode::done;
    }
    if (const QString trouble = store.takeTrouble(); !trouble.isEmpty())
        complain(trouble);
    switch (arguments.mode) {
    case PipeArguments::Mode::Spell:
        return listWords(world, arguments);
    case PipeArguments::Mode::Batch:
        return runBatch(world);
    default:
        return runSteps(world, arguments);
    }
}

int run(const QStringList &commandLine) {
    const PipeArguments arguments = readArguments(commandLine);
    if (!arguments.error.isEmpty())
        throw BadRequest(arguments.error);
    switch (arguments.mode) {
    case PipeArguments::Mode::Help:
        writeStandardOutput(helpText());
        return exitCode::done;
    case PipeArguments::Mode::Version:
        writeStandardOutput(versionText(QStringLiteral("tolvo-pipe")));
        return exitCode::done;
    default:
        return runWithCatalogue(arguments);
    }
}

} // namespace

} // namespace tolvo

int main(int argc, char **argv) {
    tolvo::prepareForLargeTexts();
    tolvo::useBinaryStreams();
    const QCoreApplication application(argc, argv);
    try {
        return tolvo::run(QCoreApplication::arguments().sliced(1));
    } catch (const tolvo::BadRequest &refusal) {
        tolvo::complain(QString::fromUtf8(refusal.what()));
        return tolvo::exitCode::badUsage;
    } catch (const std::exception &failure) {
        tolvo::complain(QString::fromUtf8(failure.what()));
        return tolvo::exitCode::internalError;
    }
}
