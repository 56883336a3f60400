// SPDX-License-Identifier: MIT
#include "companions/usage_counters.h"

#include "base/application.h"
#include "base/conversions.h"
#include "base/numbers.h"
#include "preferences/settings_store.h"

namespace tolvo {

namespace {

const QString usage = QStringLiteral("Usage");
const QString powerButtonUsage = QStringLiteral("PBUsage");
const QString startDate = QStringLiteral("StartDate");
const QString startCount = QStringLiteral("Count");

double countOf(const QString &text) {
    bool ok = false;
    const double count = text.toDouble(&ok);
    return ok && count > 0 ? count : 0;
}

/// The counters of a section by tool.
QList<std::pair<QString, double>> counters(const SettingsStore &store, const QString &section) {
    QList<std::pair<QString, double>> list;
    const auto pairs = store.GetAllSettings(statisticsTree(), section);
    for (const auto &[key, value] : pairs.value_or(QList<SettingsStore::Pair>())) {
        if (key != startDate && key != startCount)
            list.emplaceBack(key, countOf(value));
    }
    return list;
}

QHash<QString, double> counterHash(const SettingsStore &store, const QString &section) {
    const auto list = counters(store, section);
    return QHash<QString, double>(list.begin(), list.end());
}

void takeOff(SettingsStore &store, const QString &section, const QString &key, double count) {
    const double left = countOf(store.GetSetting(statisticsTree(), section, key, 0)) - count;
    if (left > 0)
        store.SaveSetting(statisticsTree(), section, key, numberText(left));
    else
        store.DeleteValue(statisticsTree(), section, key);
}

} // namespace

QList<ToolCount> toolCounts(const SettingsStore &store, bool fromPowerButtons) {
    const QString period = fromPowerButtons ? powerButtonUsage : usage;
    QList<ToolCount> tools;
    QHash<QString, qsizetype> places;
    const auto place = [&](const QString &token) -> ToolCount & {
        if (!places.contains(token)) {
            places.insert(token, tools.size());
            tools += ToolCount{token};
        }
        return tools[places.value(token)];
    };
    for (const auto &[token, count] : counters(store, QStringLiteral("Tot") + period))
        place(token).total = count;
    for (const auto &[token, count] : counters(store, period))
        place(token).period = count;
    return tools;
}

UsagePeriod usagePeriod(const SettingsStore &store) {
    UsagePeriod result;
    result.since = store.GetSetting(statisticsTree(), usage, startDate, QString());
    result.starts = countOf(store.GetSetting(statisticsTree(), usage, startCount, 0));
    result.tools = counterHash(store, usage);
    result.powerButtonTools = counterHash(store, powerButtonUsage);
    return result;
}

void beginPeriod(SettingsStore &store, const UsagePeriod &old, const QDateTime &now) {
    SettingsStore::Transaction transaction(store);
    takeOff(store, usage, startCount, old.starts);
    for (auto tool = old.tools.begin(); tool != old.tools.end(); ++tool)
        takeOff(store, usage, tool.key(), tool.value());
    for (auto tool = old.powerButtonTools.begin(); tool != old.powerButtonTools.end(); ++tool)
        takeOff(store, powerButtonUsage, tool.key(), tool.value());
    store.SaveSetting(statisticsTree(), usage, startDate, dateText(now));
    transaction.commit();
}

} // namespace tolvo
