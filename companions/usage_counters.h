// SPDX-License-Identifier: MIT
// What the statistics tree has counted, for those who show it or send it away.
#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QString>

namespace tolvo {

class SettingsStore;

/// How often a tool was used.
struct ToolCount {
    QString token;
    double period = 0; ///< since the counters were last reset
    double total = 0;  ///< ever
};

/// The counts of tools used by hand and in any other way, or from PowerButtons only; in the order in which
/// the tools were first used. A stored text that is not a number counts as 0.
[[nodiscard]] QList<ToolCount> toolCounts(const SettingsStore &store, bool fromPowerButtons);

/// The counters of the present period.
struct UsagePeriod {
    QString since; ///< as stored; empty if it isn't known
    double starts = 0;
    QHash<QString, double> tools;
    QHash<QString, double> powerButtonTools;
};
/// Reads them.
[[nodiscard]] UsagePeriod usagePeriod(const SettingsStore &store);

/// Begins a new period: takes the counts of the old one off the counters, so that what was counted since they
/// were read stays, and writes the new date. The totals stay as they are.
void beginPeriod(SettingsStore &store, const UsagePeriod &old, const QDateTime &now);

} // namespace tolvo
