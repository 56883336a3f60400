// SPDX-License-Identifier: MIT
#include "preferences/CRegistryTool.h"
#include "preferences/settings_store.h"
#include "preferences/special_folders.h"

#include <QDir>
#include <gtest/gtest.h>

namespace tolvo {
namespace {

const QString root = u"HKEY_CURRENT_USER"_qs;

TEST(RegistryTool, WalksAndDeletesSections) {
    SettingsStore store(u":memory:"_qs);
    CRegistryTool registry(store);
    const QString button = settingsKeyPath(u"PowerButtons\\Button 3"_qs);
    EXPECT_EQ(button, u"Software\\Tolvo Settings\\Tolvo\\PowerButtons\\Button 3"_qs);
    for (const QString &action : {u"2"_qs, u"10"_qs, u"1"_qs})
        store.SaveSetting(u"Tolvo"_qs, u"PowerButtons\\Button 3\\"_qs + action, u"Token"_qs, u"ccUPP"_qs);

    EXPECT_TRUE(registry.CheckRegistryKey(u"hkey_current_user"_qs, button.toUpper()));
    EXPECT_EQ(registry.EnumRegistryKeys(root, button), (QStringList{u"2"_qs, u"10"_qs, u"1"_qs}));
    EXPECT_FALSE(registry.DeleteRegistryKey(root, button)) << "it has subkeys";
    EXPECT_TRUE(registry.DeleteRegistryKey(root, button + u"\\10"_qs));
    EXPECT_FALSE(registry.DeleteRegistryKey(root, button + u"\\10"_qs));
    registry.EraseRegistryTree(root, button);
    registry.EraseRegistryTree(root, button);
    EXPECT_FALSE(registry.CheckRegistryKey(root, button));
    EXPECT_TRUE(registry.CheckRegistryKey(root, settingsKeyPath(u"PowerButtons"_qs)));
    registry.EraseRegistryTree(root, settingsKeyPath());
    EXPECT_TRUE(registry.EnumRegistryKeys(root, settingsKeyPath()).isEmpty());
}

TEST(RegistryTool, KnowsOnlyItsOwnRoot) {
    SettingsStore store(u":memory:"_qs);
    store.SaveSetting(u"Tolvo"_qs, u"S"_qs, u"k"_qs, u"v"_qs);
    CRegistryTool registry(store);
    for (const auto &[key, path] :
         {std::pair{u"HKEY_LOCAL_MACHINE"_qs, settingsKeyPath()}, std::pair{root, u"Software"_qs},
          std::pair{root, u"Software\\Tolvo Settings"_qs}, std::pair{root, u"Software\\Tolvo Settings\\"_qs},
          std::pair{root, u"Software\\Tolvo Settings\\\\S"_qs},
          std::pair{root, u"Software\\Tolvo SettingsX\\Tolvo"_qs}}) {
        EXPECT_FALSE(registry.CheckRegistryKey(key, path)) << path.toStdString();
        registry.EraseRegistryTree(key, path);
    }
    EXPECT_TRUE(registry.CheckRegistryKey(root, settingsKeyPath(u"S"_qs)));
}

TEST(SpecialFolders, NumberFiveIsTheDocuments) {
    EXPECT_EQ(GetSpecialFolder(5), GetDocumentsFolder());
    EXPECT_TRUE(QDir::isAbsolutePath(GetDocumentsFolder()));
    EXPECT_EQ(GetSpecialFolder(-1), QString());
}

} // namespace
} // namespace tolvo
