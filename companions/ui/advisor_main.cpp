// SPDX-License-Identifier: MIT
// Advisor.exe: tips, one at a time. A second one that is started while the first is open ends at once. One
// that is held back shows its window when whoever started it lets go.
#include "companions/ui/AdvisorWindow.h"
#include "platform/processes.h"
#include "preferences/settings_store.h"
#include "widgets/dress_application.h"

#include <QApplication>
#include <QLockFile>
#include <QSocketNotifier>
#include <unistd.h>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    tolvo::dressApplication();
    const QString path = tolvo::SettingsStore::defaultPath();
    tolvo::SettingsStore store(path);
    QLockFile single(path + QStringLiteral(".tips"));
    single.setStaleLockTime(0);
    if (!single.tryLock() && single.error() == QLockFile::LockFailedError)
        return 0;
    tolvo::AdvisorWindow window(store);
    QSocketNotifier letGo(STDIN_FILENO, QSocketNotifier::Read);
    if (qEnvironmentVariableIsSet(tolvo::heldBackVariable)) {
        QObject::connect(&letGo, &QSocketNotifier::activated, &window, [&] {
            letGo.setEnabled(false);
            window.show();
        });
    } else {
        letGo.setEnabled(false);
        window.show();
    }
    return QApplication::exec();
}
