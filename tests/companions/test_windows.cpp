// SPDX-License-Identifier: MIT
// The windows of the companions, as a user meets them.
#include "companions/tip_links.h"
#include "companions/ui/AdvisorWindow.h"
#include "companions/ui/BarChart.h"
#include "companions/ui/TallyWindow.h"
#include "preferences/settings_keys.h"
#include "preferences/settings_store.h"
#include "tests/ui/user.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QProcess>
#include <QTableWidget>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString stats = u"Tolvo-Stats"_s;

TEST(Advisor, WalksThroughTheTipsAndIsSwitchedOff) {
    SettingsStore store(u":memory:"_s);
    AdvisorWindow window(store);
    const auto title = [&] { return child<QLabel>(window, "labTitle").text(); };
    const QString first = title();
    window.show();
    QTest::keyClick(&window, Qt::Key_Return); // Next is the default button
    EXPECT_NE(title(), first);
    click(window, "cmdPrevious");
    EXPECT_EQ(title(), first);
    const QSize size = window.size();
    EXPECT_LT(size.width(), 400) << "there is no more room beside the text on many screens";
    for (std::size_t i = 0; i < tips().size(); ++i) {
        click(window, "cmdNext");
        const auto &text = child<QLabel>(window, "labTip");
        QCoreApplication::processEvents();
        EXPECT_LE(text.heightForWidth(text.width()), text.height()) << title().toStdString();
    }
    EXPECT_EQ(window.size(), size);
    EXPECT_TRUE(child<QCheckBox>(window, "chkShowTips").isChecked());
    click(window, "chkShowTips");
    EXPECT_EQ(store.GetSetting(u"Tolvo"_s, u"Preferences"_s, u"Show Tips at Startup"_s, 1), u"0"_s);
    activate(window);
    child<QWidget>(window, "cmdClose").setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(window.isVisible());
}

TEST(Advisor, LinksTheToolsThatItNames) {
    const QList<Catalogue::PanelItem> tools{{u"Group"_s, u">"_s, {}},
                                            {u"Trim lines"_s, u"foTRM"_s, {}},
                                            {u"Trim"_s, u"t"_s, {}},
                                            {u"Word wrap..."_s, u"foWRP"_s, {}}};
    const std::pair<QString, QString> rows[] = {
        {u"Trim lines & Trim."_s, u"<a href=\"foTRM\">Trim lines</a> &amp; <a href=\"t\">Trim</a>."_s},
        {u"The tool Word wrap breaks"_s, u"The tool <a href=\"foWRP\">Word wrap</a> breaks"_s},
        {u"Group, word wrap, Trims"_s, u"Group, word wrap, Trims"_s},
    };
    for (const auto &[tip, html] : rows)
        EXPECT_EQ(withToolLinks(tip, tools), html);

    // Each tip that names tools does so by the names of today.
    const auto real =
        Catalogue::read(qEnvironmentVariable("TOLVO_BIN") + u'/' + Catalogue::fileName).panelItems();
    const auto linking = std::count_if(tips().begin(), tips().end(), [&](const Tip &tip) {
        return withToolLinks(QString::fromUtf16(tip.text), real).contains(u"<a ");
    });
    EXPECT_GE(linking, 10);

    SettingsStore store(u":memory:"_s);
    set(store, settingKeys.advisor.lastTip, 12);
    AdvisorWindow window(store);
    QStringList asked;
    window.offerTools(real, [&](const QString &token) { asked += token; });
    auto &text = child<QLabel>(window, "labTip");
    EXPECT_TRUE(text.text().startsWith(u"<a href=\"foPAR\">Join paragraphs</a> turns"));
    activate(window);
    text.setFocus();
    QTest::keyClick(&text, Qt::Key_Tab);
    QTest::keyClick(&text, Qt::Key_Return);
    EXPECT_EQ(asked, QStringList{u"foPAR"_s});
}

TEST(Tally, SortsByNumberAndPaintsBars) {
    SettingsStore store(u":memory:"_s);
    for (const char *count :
         {"TotUsage a 1000", "TotUsage b 200", "TotUsage c 30", "Usage a 9", "Usage b 10"}) {
        const QStringList parts = QString(count).split(u' ');
        store.SaveSetting(stats, parts[0], parts[1], parts[2]);
    }
    TallyWindow window(store, [](const QString &token) { return u"tool "_s + token; });
    auto &table = child<QTableWidget>(window, "lvwTools");
    const auto column = [&](int index) {
        QStringList texts;
        for (int row = 0; row < table.rowCount(); ++row)
            texts += table.item(row, index)->text();
        return texts;
    };
    EXPECT_EQ(column(2), (QStringList{u"1,000"_s, u"200"_s, u"30"_s}));
    table.sortByColumn(1, Qt::AscendingOrder);
    EXPECT_EQ(column(1), (QStringList{u"0"_s, u"9"_s, u"10"_s}));
    EXPECT_EQ(column(0), (QStringList{u"tool c"_s, u"tool a"_s, u"tool b"_s}));

    const auto &chart = child<BarChart>(window, "picTools");
    ASSERT_EQ(chart.bars().size(), 3);
    EXPECT_EQ(chart.bars().first().name, u"tool a"_s);
    child<QComboBox>(window, "cmbSpan").setCurrentIndex(0);
    ASSERT_EQ(chart.bars().size(), 2) << "what wasn't used in the period has no bar";
    EXPECT_EQ(chart.bars().first().name, u"tool b"_s);
    EXPECT_TRUE(child<BarChart>(window, "picPowerButtons").bars().isEmpty());
}

TEST(Advisor, ShowsOneWindowOfTipsAtATime) {
    const QTemporaryDir folder;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"TOLVO_SETTINGS"_s, folder.filePath(u"settings.sqlite"_s));
    QProcess first, second;
    for (QProcess *const program : {&first, &second}) {
        program->setProcessEnvironment(environment);
        program->start(qEnvironmentVariable("TOLVO_BIN") + u"/Advisor.exe"_s, QStringList());
        EXPECT_EQ(program->waitForStarted() && !program->waitForFinished(1500), program == &first);
    }
    EXPECT_EQ(second.exitCode(), 0);
    first.kill();
    first.waitForFinished();
}

} // namespace
} // namespace tolvo
