// SPDX-License-Identifier: MIT
// Settings that travel: out of one store, into another.
#include "preferences/CRegistryTool.h"
#include "preferences/reg_file.h"
#include "preferences/settings_exchange.h"
#include "preferences/settings_store.h"
#include "tests/support/failures.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString app = u"Tolvo"_s;
const QByteArray tree = "HKEY_CURRENT_USER\\Software\\Tolvo Settings\\Tolvo";

struct SettingsExchange : testing::Test {
    SettingsStore store{u":memory:"_s};
    QTemporaryDir folder;
    QString path = folder.filePath(u"my settings.reg"_s);

    void SetUp() override {
        const struct {
            QString section, key, value;
        } rows[] = {{u"Search"_s, u"Tab"_s, u"2"_s},
                    {u"PowerButtons\\Button 2"_s, u"Name"_s, u"say \"hi\\there\" 😀"_s},
                    {u"PowerButtons\\Button 2\\2"_s, u"Token"_s, u"edREP"_s},
                    {u"PowerButtons\\Button 2\\2"_s, u"Details"_s, u"Find=a\r\nb, Replace=\t\\"_s},
                    {u"PowerButtons\\Button 2\\1"_s, u"Token"_s, u"ccUPP"_s},
                    {u"PowerButtons\\Button 1"_s, u"Name"_s, u"<Enter a name>"_s},
                    {u"Search\\SearchMRU"_s, u"b"_s, u"second"_s},
                    {u"Search\\SearchMRU"_s, u"a"_s, u" first "_s},
                    {u"Preferences"_s, u"Show Tips at Startup"_s, u"0"_s}};
        for (const auto &[section, key, value] : rows)
            store.SaveSetting(app, section, key, value);
        store.SaveSetting(u"Tolvo-Stats"_s, u"Usage"_s, u"Count"_s, u"5"_s);
    }

    QByteArray all() const { return exportedSettings(store, ExportScope::Everything); }
};

TEST_F(SettingsExchange, EverythingComesBackInItsOrder) {
    exportSettings(store, ExportScope::Everything, path);
    SettingsStore other(u":memory:"_s);
    importSettings(other, path);
    EXPECT_EQ(exportedSettings(other, ExportScope::Everything), all());
    EXPECT_EQ(other.subsections(app, u"PowerButtons\\Button 2"_s), (QStringList{u"2"_s, u"1"_s}));
    EXPECT_FALSE(other.sectionExists(u"Tolvo-Stats"_s, {})) << "statistics stay at home";
    importSettings(other, path);
    EXPECT_EQ(exportedSettings(other, ExportScope::Everything), all()) << "a second time changes nothing";
}

TEST_F(SettingsExchange, PowerButtonsAlone) {
    const auto keys = readRegFile(exportedSettings(store, ExportScope::PowerButtons));
    ASSERT_EQ(keys.size(), 5);
    for (const RegKey &key : keys)
        EXPECT_TRUE(key.path.startsWith(settingsKeyPath(u"PowerButtons"_s)));
}

TEST_F(SettingsExchange, MergesAndDeletes) {
    importSettings(store, "REGEDIT4\n[" + tree + "\\SEARCH]\n\"TAB\"=-\n\"More\"=\"True\"\n[-" + tree +
                              "\\PowerButtons]\n[HKCU\\Software\\Tolvo Settings\\tolvo\\New]\n"
                              "[HKEY_CURRENT_USER\\Software\\Tolvo Settings]\n");
    EXPECT_EQ(store.GetAllSettings(app, u"Search"_s), (QList<SettingsStore::Pair>{{u"More"_s, u"True"_s}}));
    EXPECT_EQ(store.subsections(app, {}), (QStringList{u"Search"_s, u"Preferences"_s, u"New"_s}));
    EXPECT_EQ(store.GetSetting(app, u"Preferences"_s, u"Show Tips at Startup"_s, 1), u"0"_s);
}

TEST_F(SettingsExchange, AnErrorChangesNothing) {
    const QByteArray before = all();
    const QByteArray good = "REGEDIT4\n[" + tree + "]\n\"new\"=\"value\"\n[-" + tree + "\\Search]\n";
    const QByteArray ours = "[HKEY_CURRENT_USER\\Software\\Tolvo Settings";
    const QByteArray cases[] = {"[HKEY_LOCAL_MACHINE\\Software\\Tolvo Settings\\Tolvo]",
                                "[HKEY_CURRENT_USER\\Software]",
                                "[HKEY_CURRENT_USER]",
                                "[-" + ours.mid(1) + "]",
                                ours + "\\Other]",
                                ours + "\\Tolvo\\\\a]",
                                ours + "\\Tolvo\\" + QByteArray(256, 'a') + "]",
                                ours + "\\Tolvo" + QByteArray("\\a").repeated(600) + "]",
                                "nonsense"};
    for (const QByteArray &bad : cases) {
        expectFailure(
            failureNumber::invalidArgument, [&] { importSettings(store, QByteArray(good + bad)); },
            u"Line 5:"_s);
        EXPECT_EQ(all(), before);
    }
}

TEST_F(SettingsExchange, AHundredThousandValues) {
    QList<RegKey> keys{{registryUserRoot.toString(), settingsKeyPath(u"Many"_s)}};
    for (int i = 0; i < 100'000; ++i)
        keys.front().values += RegValue{{QString::number(i), u"value"_s}};
    SettingsStore file(folder.filePath(u"settings.sqlite"_s));
    importSettings(file, writeRegFile(keys));
    EXPECT_EQ(file.GetAllSettings(app, u"Many"_s)->size(), 100'000);
}

TEST_F(SettingsExchange, FilesThatCantBeUsed) {
    for (const QString &file : {folder.filePath(u"none/x.reg"_s), folder.path(), u"/dev/full"_s})
        expectFailure(failureNumber::fileAccess,
                      [&] { exportSettings(store, ExportScope::Everything, file); });
    for (const QString &file : {folder.filePath(u"none.reg"_s), folder.path()})
        expectFailure(failureNumber::fileAccess, [&] { importSettings(store, file); });
}

} // namespace
} // namespace tolvo
