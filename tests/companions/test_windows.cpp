// SPDX-License-Identifier: MIT
// The windows of the companions, as a user meets them.
#include "companions/ui/AdvisorWindow.h"
#include "companions/ui/BarChart.h"
#include "companions/ui/TallyWindow.h"
#include "preferences/settings_store.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace tolvo {
namespace {

const QString stats = u"Tolvo-Stats"_qs;

TEST(Advisor, WalksThroughTheTipsAndIsSwitchedOff) {
    SettingsStore store(u":memory:"_qs);
    AdvisorWindow window(store);
    const auto title = [&] { return window.findChild<QLabel *>(u"labTitle"_qs)->text(); };
    const QString first = title();
    window.show();
    QTest::keyClick(&window, Qt::Key_Return); // Next is the default button
    EXPECT_NE(title(), first);
    QTest::mouseClick(window.findChild<QPushButton *>(u"cmdPrevious"_qs), Qt::LeftButton);
    EXPECT_EQ(title(), first);
    const QSize size = window.size();
    for (std::size_t i = 0; i < tips().size(); ++i) {
        QTest::mouseClick(window.findChild<QPushButton *>(u"cmdNext"_qs), Qt::LeftButton);
        const auto *const text = window.findChild<QLabel *>(u"labTip"_qs);
        QCoreApplication::processEvents();
        EXPECT_LE(text->heightForWidth(text->width()), text->height()) << title().toStdString();
    }
    EXPECT_EQ(window.size(), size);
    auto *const show = window.findChild<QCheckBox *>(u"chkShowTips"_qs);
    EXPECT_TRUE(show->isChecked());
    QTest::mouseClick(show, Qt::LeftButton, {}, QPoint(5, show->height() / 2));
    EXPECT_EQ(store.GetSetting(u"Tolvo"_qs, u"Preferences"_qs, u"Show Tips at Startup"_qs, 1), u"0"_qs);
}

TEST(Tally, SortsByNumberAndPaintsBars) {
    SettingsStore store(u":memory:"_qs);
    for (const char *count :
         {"TotUsage a 1000", "TotUsage b 200", "TotUsage c 30", "Usage a 9", "Usage b 10"}) {
        const QStringList parts = QString(count).split(u' ');
        store.SaveSetting(stats, parts[0], parts[1], parts[2]);
    }
    TallyWindow window(store, [](const QString &token) { return u"tool "_qs + token; });
    auto *const table = window.findChild<QTableWidget *>(u"lvwTools"_qs);
    const auto column = [&](int index) {
        QStringList texts;
        for (int row = 0; row < table->rowCount(); ++row)
            texts += table->item(row, index)->text();
        return texts;
    };
    EXPECT_EQ(column(2), (QStringList{u"1,000"_qs, u"200"_qs, u"30"_qs}));
    table->sortByColumn(1, Qt::AscendingOrder);
    EXPECT_EQ(column(1), (QStringList{u"0"_qs, u"9"_qs, u"10"_qs}));
    EXPECT_EQ(column(0), (QStringList{u"tool c"_qs, u"tool a"_qs, u"tool b"_qs}));

    const auto *const chart = window.findChild<BarChart *>(u"picTools"_qs);
    ASSERT_EQ(chart->bars().size(), 3);
    EXPECT_EQ(chart->bars().first().name, u"tool a"_qs);
    window.findChild<QComboBox *>(u"cmbSpan"_qs)->setCurrentIndex(0);
    ASSERT_EQ(chart->bars().size(), 2) << "what wasn't used in the period has no bar";
    EXPECT_EQ(chart->bars().first().name, u"tool b"_qs);
    EXPECT_TRUE(window.findChild<BarChart *>(u"picPowerButtons"_qs)->bars().isEmpty());
}

TEST(Companions, StartAsPrograms) {
    const QTemporaryDir folder;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TOLVO_SETTINGS"_qs, folder.filePath(u"settings.sqlite"_qs));
    const auto start = [&](QProcess &program, const QString &name) {
        program.setProcessEnvironment(environment);
        program.start(qEnvironmentVariable("TOLVO_BIN") + u'/' + name, QStringList());
        return program.waitForStarted() && !program.waitForFinished(1500);
    };
    QProcess advisor, second, tally;
    EXPECT_TRUE(start(advisor, u"Advisor.exe"_qs));
    EXPECT_TRUE(start(tally, u"Tally.exe"_qs));
    EXPECT_FALSE(start(second, u"Advisor.exe"_qs)) << "one window of tips is enough";
    EXPECT_EQ(second.exitCode(), 0);
    for (QProcess *const program : {&advisor, &tally}) {
        program->kill();
        program->waitForFinished();
    }
}

} // namespace
} // namespace tolvo
