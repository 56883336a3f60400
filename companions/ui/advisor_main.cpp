// SPDX-License-Identifier: MIT
// Advisor.exe: tips, one at a time. A second one that is started while the first is open ends at once. One
// that is held back shows its window when whoever started it lets go, and leaves with it.
#include "base/failure.h"
#include "base/paths.h"
#include "companions/ui/AdvisorWindow.h"
#include "platform/gate_watch.h"
#include "platform/headless/help_text.h"
#include "platform/kept_free.h"
#include "platform/processes.h"
#include "platform/program_folders.h"
#include "preferences/settings_keys.h"
#include "preferences/settings_store.h"
#include "widgets/dress_application.h"

#include <QApplication>
#include <QLockFile>
#include <optional>

namespace {

/// A tool that is clicked runs in the session that has started the tips; the settings pass it on.
void offerTools(tolvo::AdvisorWindow &window, tolvo::SettingsStore &store, const QString &run) {
    using namespace tolvo;
    try {
        const QString folder = sAppPath(programFolders().data);
        window.offerTools(Catalogue::read(folder + Catalogue::fileName).panelItems(),
                          [&store, run](const QString &token) {
                              set(store, settingKeys.hints.toolOfTip, run + u' ' + token);
                          });
    } catch (const Failure &) {
        // The tips can be read without it; the run has reported what is wrong with the catalogue.
    }
}

const QString help = QStringLiteral(R"(Usage: Advisor.exe
Shows tips for Tolvo, one at a time. Tolvo starts it with every session unless "Show tips at startup" is off; a second one that
is started while the first is open ends at once.

  -h, --help  print this text
  --version   print the version
)");

} // namespace

int main(int argc, char **argv) {
    if (tolvo::answersForHelp(argc, argv, QStringLiteral("Advisor.exe"), help))
        return 0;
    const QApplication application(argc, argv);
    tolvo::dressApplication();
    const QString path = tolvo::SettingsStore::defaultPath();
    tolvo::SettingsStore store(path);
    QLockFile single(path + QStringLiteral(".tips"));
    single.setStaleLockTime(0);
    if (!single.tryLock() && single.error() == QLockFile::LockFailedError)
        return 0;
    tolvo::AdvisorWindow window(store);
    const QString run = qEnvironmentVariable(tolvo::heldBackVariable);
    std::optional<tolvo::GateWatch> gate;
    if (run.isEmpty()) {
        window.show();
    } else {
        offerTools(window, store, run);
        const auto showOnce = [&] {
            if (!window.isVisible())
                window.showBeside(tolvo::readAreas(get(store, tolvo::settingKeys.hints.keepFree)));
        };
        gate.emplace(showOnce, &QApplication::quit);
    }
    return QApplication::exec();
}
