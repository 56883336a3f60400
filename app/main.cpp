// SPDX-License-Identifier: MIT
// The desktop program: makes what a run stands on and hands it down. One run is one clipboard session, or one
// command on the clipboard.
#include "app/arguments.h"
#include "app/command.h"
#include "base/application.h"
#include "base/paths.h"
#include "platform/clock.h"
#include "platform/desktop/CommandKeys.h"
#include "platform/desktop/DesktopClipboard.h"
#include "platform/desktop/DesktopMessageBoxes.h"
#include "platform/desktop/DesktopProcesses.h"
#include "platform/desktop/EscapeWatch.h"
#include "platform/desktop/clipboard_keeper.h"
#include "platform/desktop/desktop_sound.h"
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/help_text.h"
#include "platform/network/OnDemandHttpClient.h"
#include "platform/program_arguments.h"
#include "platform/program_folders.h"
#include "platform/report_error.h"
#include "preferences/settings_store.h"
#include "shell/modMain.h"
#include "shell/ui/desktop_session.h"
#include "spelling/word_automation.h"
#include "widgets/dress_application.h"

#include <QApplication>

namespace {

using namespace tolvo;

/// What nothing else has caught is reported here, where an event enters; the session goes on.
class Application : public QApplication {
  public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override {
        bool handled = false;
        reportFailures(m_boxes, applicationTitle(), QStringLiteral("notify"),
                       [&] { handled = QApplication::notify(receiver, event); });
        return handled;
    }

  private:
    DesktopMessageBoxes m_boxes;
};

/// `buttonFile` is what the session begins with; empty if the user has opened none.
int runOnce(const QString &buttonFile) {
    const ProgramFolders folders = programFolders();
    SettingsStore store(SettingsStore::defaultPath());
    DesktopClipboard clipboard;
    DesktopMessageBoxes boxes;
    const std::unique_ptr<SoundPlayer> sound = desktopSound();
    DesktopProcesses processes;
    Clock clock;
    FileExtensions extensions(sAppPath(folders.data) + QStringLiteral("FileExtensions.txt"),
                              FileExtensions::Source::System);
    EscapeWatch escape;
    clipboard.guardInput = [&escape] { return escape.guard(); };
    clipboard.cancelled = [&escape] { return escape.escapePressed(); };
    OnDemandHttpClient http(folders.programs);
    http.guardInput = [&escape] { return escape.guard(); };
    http.cancelled = [&escape] { return escape.escapePressed(); };
    const std::unique_ptr<WordAutomation> word = wordOfSystem();
    SpellingServices spelling{.store = store,
                              .boxes = boxes,
                              .http = http,
                              .word = *word,
                              .dataFolder = folders.data,
                              .userFolder = SpellingServices::defaultUserFolder()};
    const RunServices services{.store = store,
                               .clipboard = clipboard,
                               .boxes = boxes,
                               .sound = *sound,
                               .processes = processes,
                               .clock = clock,
                               .extensions = extensions,
                               .programFolder = folders.programs,
                               .dataFolder = folders.data,
                               .spelling = spelling};
    modMain run(services, [&] {
        auto window = std::make_unique<DesktopSession>(services, clipboard, escape);
        window->beginWithButtonFile(buttonFile);
        return window;
    });
    return run.Main();
}

} // namespace

int main(int argc, char **argv) {
    joinCallersConsole();
    const Arguments arguments = readArguments(programArguments(argc, argv));
    if (!arguments.error.isEmpty()) {
        ConsoleBoxes(QStringLiteral("tolvo: ")).say(arguments.error);
        return 2;
    }
    if (arguments.mode == Arguments::Mode::Help || arguments.mode == Arguments::Mode::Version) {
        printHelp(arguments.mode == Arguments::Mode::Help ? helpText()
                                                          : versionText(QStringLiteral("tolvo")));
        return 0;
    }
    // This call forks, which has to come before anything of the toolkit exists.
    return runAsClipboardKeeper([&](KeeperSession &keeper) {
        if (arguments.mode == Arguments::Mode::Command)
            return runCommand(argc, argv, arguments, keeper);
        const Application application(argc, argv);
        const CommandKeys commandKeys;
        dressApplication();
        QCoreApplication::setApplicationVersion(applicationVersion());
        QGuiApplication::setQuitOnLastWindowClosed(false);
        const int code = runOnce(arguments.file);
        keeper.sessionOver(code);
        keeper.keepClipboardUntilTaken();
        return code;
    });
}
