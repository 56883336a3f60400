// SPDX-License-Identifier: MIT
// Refresher.exe [/update] [/stats] [/quiet]. Exit code 0: done, or nothing to do; 1: not everything could be
// done; 2: an unknown switch. Quiet, it shows nothing but a newer version, unless a user asked for it.
#include "base/failure.h"
#include "companions/refresh.h"
#include "companions/refresh_report.h"
#include "platform/headless/help_text.h"
#include "platform/network/NetworkHttpClient.h"
#include "platform/processes.h"
#include "platform/program_arguments.h"
#include "preferences/settings_store.h"

#include <QCoreApplication>
#include <QLockFile>
#include <cstdio>

namespace {

using namespace tolvo;

const QString help = QStringLiteral(R"(Usage: Refresher.exe [/update] [/stats] [/quiet]
Looks for a newer version of Tolvo and sends the usage counters, if the deployment has set an address for that; otherwise it
does nothing.

  /update     look for a newer version
  /stats      send the usage counters
  /quiet      show nothing but a newer version
  -h, --help  print this text
  --version   print the version

Exit status: 0 done or nothing to do, 1 not everything could be done, 2 an unknown switch.
)");

RefreshOutcome workQuietly(int argc, char **argv, const std::function<RefreshOutcome(HttpClient &)> &work) {
    const QCoreApplication application(argc, argv);
    NetworkHttpClient client;
    return work(client);
}

} // namespace

int main(int argc, char **argv) {
    if (answersForHelp(argc, argv, QStringLiteral("Refresher.exe"), help))
        return 0;
    auto task = refreshTask(programArguments(argc, argv));
    if (!task) {
        std::fputs("Usage: Refresher.exe [/update] [/stats] [/quiet]\n", stderr);
        return 2;
    }
    const QByteArray address = updateAddress();
    const bool askedFor = qEnvironmentVariableIsSet(askedForVariable);
    if (address.isEmpty() && !askedFor)
        return 0;
    const auto work = [&](HttpClient &client) {
        try {
            const QString path = SettingsStore::defaultPath();
            SettingsStore store(path);
            // While another one sends the counters there is nothing left to send.
            QLockFile sending(path + QStringLiteral(".counters"));
            sending.setStaleLockTime(0);
            if (task->stats)
                task->stats = sending.tryLock();
            return refresh(*task, address, store, client, Clock());
        } catch (const Failure &failure) {
            return RefreshOutcome{.done = false, .messages = {failure.description()}};
        }
    };
    RefreshOutcome outcome;
    if (task->quiet && !askedFor) {
        outcome = workQuietly(argc, argv, work);
        if (outcome.newer)
            refreshAloud(argc, argv, [&](HttpClient &) { return outcome; });
    } else {
        outcome = refreshAloud(argc, argv, work);
    }
    return outcome.done ? 0 : 1;
}
