// SPDX-License-Identifier: MIT
#include "companions/usage_counters.h"

#include "preferences/settings_keys.h"

namespace tolvo {

namespace {

constexpr const StatisticsKeys &keys = settingKeys.statistics;

/// The counters of a section by tool.
QList<std::pair<QString, double>> counters(const SettingsStore &store, const CounterSection &counted) {
    QList<std::pair<QString, double>> list;
    for (const auto &[key, value] : pairsOf(store, counted.section)) {
        if (key != keys.startDate.name && key != keys.starts.name)
            list.emplaceBack(key, forms::Count::read(value));
    }
    return list;
}

QHash<QString, double> counterHash(const SettingsStore &store, const CounterSection &counted) {
    const auto list = counters(store, counted);
    return QHash<QString, double>(list.begin(), list.end());
}

void takeOff(SettingsStore &store, const Setting<forms::Count> &counter, double count) {
    const double left = get(store, counter) - count;
    if (left > 0)
        set(store, counter, left);
    else
        remove(store, counter);
}

void takeOff(SettingsStore &store, const CounterSection &counted, const QHash<QString, double> &counts) {
    for (auto tool = counts.begin(); tool != counts.end(); ++tool)
        takeOff(store, counted.of(tool.key()), tool.value());
}

} // namespace

QList<ToolCount> toolCounts(const SettingsStore &store, bool fromPowerButtons) {
    const CounterSection &period = fromPowerButtons ? keys.powerButtonUses : keys.uses;
    const CounterSection &total = fromPowerButtons ? keys.totalPowerButtonUses : keys.totalUses;
    QList<ToolCount> tools;
    QHash<QString, qsizetype> places;
    const auto place = [&](const QString &token) -> ToolCount & {
        if (!places.contains(token)) {
            places.insert(token, tools.size());
            tools += ToolCount{token};
        }
        return tools[places.value(token)];
    };
    for (const auto &[token, count] : counters(store, total))
        place(token).total = count;
    for (const auto &[token, count] : counters(store, period))
        place(token).period = count;
    return tools;
}

UsagePeriod usagePeriod(const SettingsStore &store) {
    UsagePeriod result;
    result.since = textOf(store, keys.startDate);
    result.starts = get(store, keys.starts);
    result.tools = counterHash(store, keys.uses);
    result.powerButtonTools = counterHash(store, keys.powerButtonUses);
    return result;
}

void beginPeriod(SettingsStore &store, const UsagePeriod &old, const QDateTime &now) {
    SettingsStore::Transaction transaction(store);
    takeOff(store, keys.starts, old.starts);
    takeOff(store, keys.uses, old.tools);
    takeOff(store, keys.powerButtonUses, old.powerButtonTools);
    set(store, keys.startDate, now);
    transaction.commit();
}

} // namespace tolvo
