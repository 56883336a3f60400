// SPDX-License-Identifier: MIT
// What Refresher.exe does: looks for updates and sends the usage counters, at an address that the deployment
// sets. Without an address it does nothing.
//
// The server answers GET address?version=1.0.0 with {"version": "1.2.0", "url": "https://..."} (the url may
// be missing), and POST address (the counters as JSON) with any status from 200 to 299 if it has taken them.
#pragma once

#include "companions/usage_counters.h"
#include "platform/clock.h"
#include "platform/http_client.h"

#include <QStringList>
#include <optional>

namespace tolvo {

/// What the command line asks for.
struct RefreshTask {
    bool update = false; ///< /update: look for a newer version
    bool stats = false;  ///< /stats: send the counters and begin a new period
    bool quiet = false;  ///< /quiet: show nothing unless there is a newer version
};

/// The switches of the command line; nothing if there is an unknown one.
[[nodiscard]] std::optional<RefreshTask> refreshTask(const QStringList &switches);

/// $TOLVO_UPDATE_URL, else the address of the build. Empty: there is none.
[[nodiscard]] QByteArray updateAddress();

/// What came of it.
struct RefreshOutcome {
    bool done = true;          ///< everything asked for has come to its end
    QStringList messages = {}; ///< for the user
    bool newer = false;        ///< there is a newer version
    QString download = {};     ///< web address of a newer version, empty if there is none
};

/// Carries the task out. What the server refused, or why it could not be asked, stands in the messages.
[[nodiscard]] RefreshOutcome refresh(const RefreshTask &task, const QByteArray &address, SettingsStore &store,
                                     HttpClient &client, const Clock &clock);

/// The JSON object that is sent.
[[nodiscard]] QByteArray usageReport(const UsagePeriod &period, const QDateTime &until);

} // namespace tolvo
