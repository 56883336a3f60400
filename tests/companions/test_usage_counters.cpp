// SPDX-License-Identifier: MIT
#include "companions/tips.h"
#include "companions/usage_counters.h"
#include "preferences/settings_store.h"

#include <QSet>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString stats = u"Tolvo-Stats"_s;

TEST(UsageCounters, NewPeriodKeepsTotalsAndWhatWasCountedMeanwhile) {
    SettingsStore store(u":memory:"_s);
    const auto count = [&](const QString &section, const QString &key, int times) {
        for (int i = 0; i < times; ++i)
            store.increment(stats, section, key);
    };
    store.SaveSetting(stats, u"Usage"_s, u"StartDate"_s, u"2026-01-02 03:04:05"_s);
    count(u"Usage"_s, u"Count"_s, 4);
    count(u"TotUsage"_s, u"foTRA"_s, 9);
    count(u"Usage"_s, u"foTRA"_s, 3);
    count(u"Usage"_s, u"ccUPP"_s, 2);
    count(u"PBUsage"_s, u"ccUPP"_s, 2);
    store.SaveSetting(stats, u"Usage"_s, u"edited"_s, u"many"_s);

    const UsagePeriod period = usagePeriod(store);
    EXPECT_EQ(period.starts, 4);
    EXPECT_EQ(period.tools, (QHash<QString, double>{{u"foTRA"_s, 3}, {u"ccUPP"_s, 2}, {u"edited"_s, 0}}));
    count(u"Usage"_s, u"foTRA"_s, 1); // another run, at this very moment
    beginPeriod(store, period, QDateTime(QDate(2026, 2, 3), QTime(4, 5, 6)));

    const UsagePeriod next = usagePeriod(store);
    EXPECT_EQ(next.since, u"2026-02-03 04:05:06"_s);
    EXPECT_EQ(next.starts, 0);
    EXPECT_EQ(next.tools, (QHash<QString, double>{{u"foTRA"_s, 1}}));
    EXPECT_TRUE(next.powerButtonTools.isEmpty());
    EXPECT_EQ(store.GetSetting(stats, u"TotUsage"_s, u"foTRA"_s, 0), u"9"_s);
}

TEST(Tips, GoRoundAndAreRemembered) {
    SettingsStore store(u":memory:"_s);
    QSet<QString> titles;
    for (const Tip &tip : tips())
        titles.insert(QString::fromUtf16(tip.title));
    EXPECT_GE(titles.size(), 25);
    EXPECT_EQ(titles.size(), static_cast<qsizetype>(tips().size())) << "no tip twice";

    TipWalk first(store);
    EXPECT_EQ(first.place(), 0);
    first.previous();
    EXPECT_EQ(first.place(), static_cast<int>(tips().size()) - 1);
    EXPECT_EQ(TipWalk(store).place(), 0) << "after the last one comes the first";
    EXPECT_EQ(TipWalk(store).place(), 1);
    store.SaveSetting(u"Tolvo"_s, u"Advisor"_s, u"LastTip"_s, u"no number"_s);
    EXPECT_EQ(TipWalk(store).place(), 0);
}

} // namespace
} // namespace tolvo
