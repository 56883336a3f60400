// SPDX-License-Identifier: MIT
// Advisor.exe: tips, one at a time. A second one that is started while the first is open ends at once.
#include "companions/ui/AdvisorWindow.h"
#include "platform/icons/themed_icon.h"
#include "preferences/settings_store.h"

#include <QApplication>
#include <QLockFile>

int main(int argc, char **argv) {
    const QApplication application(argc, argv);
    tolvo::makeHintsReadable();
    const QString path = tolvo::SettingsStore::defaultPath();
    tolvo::SettingsStore store(path);
    QLockFile single(path + QStringLiteral(".tips"));
    single.setStaleLockTime(0);
    if (!single.tryLock() && single.error() == QLockFile::LockFailedError)
        return 0;
    tolvo::AdvisorWindow window(store);
    window.show();
    return QApplication::exec();
}
