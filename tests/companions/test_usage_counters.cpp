// SPDX-License-Identifier: MIT
#include "companions/tips.h"
#include "companions/usage_counters.h"
#include "preferences/settings_store.h"

#include <QSet>
#include <gtest/gtest.h>

namespace tolvo {
namespace {

const QString stats = u"Tolvo-Stats"_qs;

TEST(UsageCounters, NewPeriodKeepsTotalsAndWhatWasCountedMeanwhile) {
    SettingsStore store(u":memory:"_qs);
    const auto count = [&](const QString &section, const QString &key, int times) {
        for (int i = 0; i < times; ++i)
            store.increment(stats, section, key);
    };
    store.SaveSetting(stats, u"Usage"_qs, u"StartDate"_qs, u"2026-01-02 03:04:05"_qs);
    count(u"Usage"_qs, u"Count"_qs, 4);
    count(u"TotUsage"_qs, u"foTRA"_qs, 9);
    count(u"Usage"_qs, u"foTRA"_qs, 3);
    count(u"Usage"_qs, u"ccUPP"_qs, 2);
    count(u"PBUsage"_qs, u"ccUPP"_qs, 2);
    store.SaveSetting(stats, u"Usage"_qs, u"edited"_qs, u"many"_qs);

    const UsagePeriod period = usagePeriod(store);
    EXPECT_EQ(period.starts, 4);
    EXPECT_EQ(period.tools, (QHash<QString, double>{{u"foTRA"_qs, 3}, {u"ccUPP"_qs, 2}, {u"edited"_qs, 0}}));
    count(u"Usage"_qs, u"foTRA"_qs, 1); // another run, at this very moment
    beginPeriod(store, period, QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6)));

    const UsagePeriod next = usagePeriod(store);
    EXPECT_EQ(next.since, u"2026-02-03 04:05:06"_qs);
    EXPECT_EQ(next.starts, 0);
    EXPECT_EQ(next.tools, (QHash<QString, double>{{u"foTRA"_qs, 1}}));
    EXPECT_TRUE(next.powerButtonTools.isEmpty());
    EXPECT_EQ(store.GetSetting(stats, u"TotUsage"_qs, u"foTRA"_qs, 0), u"9"_qs);
}

TEST(Tips, GoRoundAndAreRemembered) {
    SettingsStore store(u":memory:"_qs);
    QSet<QString> titles;
    for (const Tip &tip : tips())
        titles.insert(QString::fromUtf16(tip.title));
    EXPECT_GE(titles.size(), 25);
    EXPECT_EQ(titles.size(), static_cast<qsizetype>(tips().size())) << "no tip twice";

    TipWalk first(store);
    EXPECT_EQ(first.place(), 0);
    first.previous();
    EXPECT_EQ(first.place(), static_cast<int>(tips().size()) - 1);
    EXPECT_EQ(TipWalk(store).place(), 0) << "behind the last one comes the first";
    EXPECT_EQ(TipWalk(store).place(), 1);
    store.SaveSetting(u"Tolvo"_qs, u"Advisor"_qs, u"LastTip"_qs, u"no number"_qs);
    EXPECT_EQ(TipWalk(store).place(), 0);
}

} // namespace
} // namespace tolvo
