// SPDX-License-Identifier: MIT
#include "companions/refresh_report.h"
#include "platform/network/NetworkHttpClient.h"

#include <QCoreApplication>
#include <cstdio>

namespace tolvo {

RefreshOutcome refreshAloud(int argc, char **argv, const std::function<RefreshOutcome(HttpClient &)> &work) {
    const QCoreApplication application(argc, argv);
    NetworkHttpClient client;
    RefreshOutcome outcome = work(client);
    for (const QString &message : outcome.messages)
        std::puts(message.toUtf8().constData());
    if (!outcome.download.isEmpty())
        std::puts(outcome.download.toUtf8().constData());
    return outcome;
}

} // namespace tolvo
