// SPDX-License-Identifier: MIT
// Refresher.exe [/update] [/stats] [/quiet]. Exit code 0: done, or nothing to do; 1: not everything could be
// done; 2: an unknown switch.
#include "base/failure.h"
#include "companions/refresh.h"
#include "companions/refresh_report.h"
#include "platform/network/NetworkHttpClient.h"
#include "preferences/settings_store.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char **argv) {
    using namespace tolvo;
    QStringList switches;
    for (int i = 1; i < argc; ++i)
        switches += QString::fromLocal8Bit(argv[i]);
    const auto task = refreshTask(switches);
    if (!task) {
        std::fputs("Usage: Refresher.exe [/update] [/stats] [/quiet]\n", stderr);
        return 2;
    }
    const QByteArray address = updateAddress();
    if (address.isEmpty())
        return 0;
    const auto work = [&](HttpClient &client) {
        try {
            SettingsStore store(SettingsStore::defaultPath());
            return refresh(*task, address, store, client, Clock());
        } catch (const Failure &failure) {
            return RefreshOutcome{false, {failure.description()}, {}};
        }
    };
    if (!task->quiet)
        return refreshAloud(argc, argv, work).done ? 0 : 1;
    const QCoreApplication application(argc, argv);
    NetworkHttpClient client;
    return work(client).done ? 0 : 1;
}
