// SPDX-License-Identifier: MIT
#include "platform/special_folders.h"
#include "preferences/CRegistryTool.h"
#include "preferences/settings_store.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString root = u"HKEY_CURRENT_USER"_s;

TEST(RegistryTool, WalksAndDeletesSections) {
    SettingsStore store(u":memory:"_s);
    CRegistryTool registry(store);
    const QString button = settingsKeyPath(u"PowerButtons\\Button 3"_s);
    EXPECT_EQ(button, u"Software\\Tolvo Settings\\Tolvo\\PowerButtons\\Button 3"_s);
    for (const QString &action : {u"2"_s, u"10"_s, u"1"_s})
        store.SaveSetting(u"Tolvo"_s, u"PowerButtons\\Button 3\\"_s + action, u"Token"_s, u"ccUPP"_s);

    EXPECT_TRUE(registry.CheckRegistryKey(u"hkey_current_user"_s, button.toUpper()));
    EXPECT_EQ(registry.EnumRegistryKeys(root, button), (QStringList{u"2"_s, u"10"_s, u"1"_s}));
    EXPECT_FALSE(registry.DeleteRegistryKey(root, button)) << "it has subkeys";
    EXPECT_TRUE(registry.DeleteRegistryKey(root, button + u"\\10"_s));
    EXPECT_FALSE(registry.DeleteRegistryKey(root, button + u"\\10"_s));
    registry.EraseRegistryTree(root, button);
    registry.EraseRegistryTree(root, button);
    EXPECT_FALSE(registry.CheckRegistryKey(root, button));
    EXPECT_TRUE(registry.CheckRegistryKey(root, settingsKeyPath(u"PowerButtons"_s)));
    registry.EraseRegistryTree(root, settingsKeyPath());
    EXPECT_TRUE(registry.EnumRegistryKeys(root, settingsKeyPath()).isEmpty());
}

TEST(RegistryTool, KnowsOnlyItsOwnRoot) {
    SettingsStore store(u":memory:"_s);
    store.SaveSetting(u"Tolvo"_s, u"S"_s, u"k"_s, u"v"_s);
    CRegistryTool registry(store);
    for (const auto &[key, path] :
         {std::pair{u"HKEY_LOCAL_MACHINE"_s, settingsKeyPath()}, std::pair{root, u"Software"_s},
          std::pair{root, u"Software\\Tolvo Settings"_s}, std::pair{root, u"Software\\Tolvo Settings\\"_s},
          std::pair{root, u"Software\\Tolvo Settings\\\\S"_s},
          std::pair{root, u"Software\\Tolvo SettingsX\\Tolvo"_s}}) {
        EXPECT_FALSE(registry.CheckRegistryKey(key, path)) << path.toStdString();
        registry.EraseRegistryTree(key, path);
    }
    EXPECT_TRUE(registry.CheckRegistryKey(root, settingsKeyPath(u"S"_s)));
}

TEST(SpecialFolders, NumberFiveIsTheDocuments) {
    EXPECT_EQ(GetSpecialFolder(5), GetDocumentsFolder());
    EXPECT_TRUE(QDir::isAbsolutePath(GetDocumentsFolder()));
    EXPECT_EQ(GetSpecialFolder(-1), QString());
}

} // namespace
} // namespace tolvo
