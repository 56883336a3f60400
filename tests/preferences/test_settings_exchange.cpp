// SPDX-License-Identifier: MIT
// Settings that travel: out of one store, into another.
#include "preferences/CRegistryTool.h"
#include "preferences/reg_file.h"
#include "preferences/settings_exchange.h"
#include "preferences/settings_store.h"
#include "tests/support/failures.h"

#include <QFile>
#include <QMap>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace tolvo {
namespace {

const QString app = u"Tolvo"_qs;
const QByteArray tree = "HKEY_CURRENT_USER\\Software\\Tolvo Settings\\Tolvo";

struct SettingsExchange : testing::Test {
    SettingsStore store{u":memory:"_qs};
    QTemporaryDir folder;
    QString path = folder.filePath(u"my settings.reg"_qs);

    void SetUp() override {
        const struct {
            QString section, key, value;
        } rows[] = {{u"Search"_qs, u"Tab"_qs, u"2"_qs},
                    {u"PowerButtons\\Button 2"_qs, u"Name"_qs, u"say \"hi\\there\" 😀"_qs},
                    {u"PowerButtons\\Button 2\\2"_qs, u"Token"_qs, u"edREP"_qs},
                    {u"PowerButtons\\Button 2\\2"_qs, u"Details"_qs, u"Find=a\r\nb, Replace=\t\\"_qs},
                    {u"PowerButtons\\Button 2\\1"_qs, u"Token"_qs, u"ccUPP"_qs},
                    {u"PowerButtons\\Button 1"_qs, u"Name"_qs, u"<Enter a name>"_qs},
                    {u"Search\\SearchMRU"_qs, u"b"_qs, u"second"_qs},
                    {u"Search\\SearchMRU"_qs, u"a"_qs, u" first "_qs},
                    {u"Preferences"_qs, u"Show Tips at Startup"_qs, u"0"_qs}};
        for (const auto &[section, key, value] : rows)
            store.SaveSetting(app, section, key, value);
        store.SaveSetting(u"Tolvo-Stats"_qs, u"Usage"_qs, u"Count"_qs, u"5"_qs);
    }

    QByteArray all() const { return exportedSettings(store, ExportScope::Everything); }
};

TEST_F(SettingsExchange, EverythingComesBackInItsOrder) {
    exportSettings(store, ExportScope::Everything, path);
    SettingsStore other(u":memory:"_qs);
    importSettings(other, path);
    EXPECT_EQ(exportedSettings(other, ExportScope::Everything), all());
    EXPECT_EQ(other.subsections(app, u"PowerButtons\\Button 2"_qs), (QStringList{u"2"_qs, u"1"_qs}));
    EXPECT_FALSE(other.sectionExists(u"Tolvo-Stats"_qs, {})) << "statistics stay at home";
    importSettings(other, path);
    EXPECT_EQ(exportedSettings(other, ExportScope::Everything), all()) << "a second time changes nothing";
}

TEST_F(SettingsExchange, PowerButtonsAlone) {
    const auto keys = readRegFile(exportedSettings(store, ExportScope::PowerButtons));
    ASSERT_EQ(keys.size(), 5);
    for (const RegKey &key : keys)
        EXPECT_TRUE(key.path.startsWith(settingsKeyPath(u"PowerButtons"_qs)));
}

TEST_F(SettingsExchange, MergesAndDeletes) {
    importSettings(store, "REGEDIT4\n[" + tree + "\\SEARCH]\n\"TAB\"=-\n\"More\"=\"True\"\n[-" + tree +
                              "\\PowerButtons]\n[HKCU\\Software\\Tolvo Settings\\tolvo\\New]\n"
                              "[HKEY_CURRENT_USER\\Software\\Tolvo Settings]\n");
    EXPECT_EQ(store.GetAllSettings(app, u"Search"_qs),
              (QList<SettingsStore::Pair>{{u"More"_qs, u"True"_qs}}));
    EXPECT_EQ(store.subsections(app, {}), (QStringList{u"Search"_qs, u"Preferences"_qs, u"New"_qs}));
    EXPECT_EQ(store.GetSetting(app, u"Preferences"_qs, u"Show Tips at Startup"_qs, 1), u"0"_qs);
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
            u"Line 5:"_qs);
        EXPECT_EQ(all(), before);
    }
}

TEST_F(SettingsExchange, AHundredThousandValues) {
    QList<RegKey> keys{{registryUserRoot.toString(), settingsKeyPath(u"Many"_qs)}};
    for (int i = 0; i < 100'000; ++i)
        keys.front().values += RegValue{{QString::number(i), u"value"_qs}};
    SettingsStore file(folder.filePath(u"settings.sqlite"_qs));
    importSettings(file, writeRegFile(keys));
    EXPECT_EQ(file.GetAllSettings(app, u"Many"_qs)->size(), 100'000);
}

TEST_F(SettingsExchange, FilesThatCantBeUsed) {
    for (const QString &file : {folder.filePath(u"none/x.reg"_qs), folder.path(), u"/dev/full"_qs})
        expectFailure(failureNumber::fileAccess,
                      [&] { exportSettings(store, ExportScope::Everything, file); });
    for (const QString &file : {folder.filePath(u"none.reg"_qs), folder.path()})
        expectFailure(failureNumber::fileAccess, [&] { importSettings(store, file); });
}

/// The values of a tree, without their order: a registry sorts its keys.
QMap<QString, QString> valuesOf(const QByteArray &file) {
    QMap<QString, QString> values;
    for (const RegKey &key : readRegFile(file)) {
        for (const RegValue &value : key.values)
            values.insert(key.path + u'|' + value.entry.name, value.entry.value);
    }
    return values;
}

TEST_F(SettingsExchange, AnotherRegistryEditorAgrees) {
    const QString wine = QStandardPaths::findExecutable(u"wine"_qs);
    if (wine.isEmpty())
        GTEST_SKIP() << "needs wine";
    store.SaveSetting(app, u"Odd ]["_qs, u"k;\"=\\"_qs, u"x"_qs + QString(200, QChar(u'\n')));
    exportSettings(store, ExportScope::Everything, path);
    const QString back = folder.filePath(u"back.reg"_qs);
    QProcess editor;
    editor.setProcessChannelMode(QProcess::MergedChannels);
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"WINEPREFIX"_qs, folder.filePath(u"prefix"_qs));
    environment.insert(u"WINEDEBUG"_qs, u"-all"_qs);
    environment.insert(u"WINEDLLOVERRIDES"_qs, u"mscoree,mshtml="_qs);
    editor.setProcessEnvironment(environment);
    const QString key = registryUserRoot.toString() + u'\\' + settingsKeyPath();
    QByteArray said;
    for (const QStringList &arguments :
         {QStringList{u"wineboot"_qs, u"--init"_qs}, QStringList{u"regedit"_qs, u"/S"_qs, path},
          QStringList{u"regedit"_qs, u"/E"_qs, back, key},
          QStringList{u"wineboot"_qs, u"--end-session"_qs, u"--kill"_qs}}) {
        editor.start(wine, arguments);
        ASSERT_TRUE(editor.waitForFinished(120'000)) << said.constData();
        said += editor.readAll();
        if (!QDir(folder.filePath(u"prefix/drive_c"_qs)).exists())
            GTEST_SKIP() << "wine can't set itself up here: " << said.constData();
    }
    ASSERT_TRUE(QFile::exists(back)) << said.constData();
    SettingsStore other(u":memory:"_qs);
    importSettings(other, back);
    const auto values = valuesOf(all());
    EXPECT_EQ(values.size(), 10);
    EXPECT_EQ(valuesOf(exportedSettings(other, ExportScope::Everything)), values);
}

} // namespace
} // namespace tolvo
