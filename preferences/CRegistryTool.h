// SPDX-License-Identifier: MIT
// The settings store seen as a registry: root, key path, values.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

class SettingsStore;

/// The root key under which everything of the user's hangs.
inline constexpr QStringView registryUserRoot = u"HKEY_CURRENT_USER";

/// Where the trees of the store hang under that root, with a backslash at its end.
inline constexpr QStringView settingsRoot = u"Software\\Tolvo Settings\\";

/// The path below the root key of a section of the settings tree; the empty section is the tree.
[[nodiscard]] QString settingsKeyPath(const QString &section = {});

/// A key path taken apart: the tree of the store, and the section in it. Nothing if the path doesn't lie
/// below the settings root of the user. Names compare without case.
struct RegistryPlace {
    QString application;
    QString section;
};
///   registryPlace("HKEY_CURRENT_USER", "Software\\Tolvo Settings\\Tolvo\\Search") is {"Tolvo", "Search"}
[[nodiscard]] std::optional<RegistryPlace> registryPlace(const QString &root, const QString &path);

/// One value of a key.
struct RegistryEntry {
    QString name;
    QString value;
    bool operator==(const RegistryEntry &) const = default;
};

/// Walks and deletes keys. It lives for its fixed names alone: the program goes to the store itself. Other
/// roots than the user's, and keys outside the settings root, don't exist here.
class CRegistryTool {
  public:
    explicit CRegistryTool(SettingsStore &store) : m_store(store) {}

    /// Whether the key exists.
    [[nodiscard]] bool CheckRegistryKey(const QString &root, const QString &path) const;
    /// The names of the subkeys in the order in which they were first written.
    [[nodiscard]] QStringList EnumRegistryKeys(const QString &root, const QString &path) const;
    /// Deletes one key without subkeys. False if there is none or it has subkeys.
    bool DeleteRegistryKey(const QString &root, const QString &path);
    /// Deletes the key with everything below it; harmless if there is none.
    void EraseRegistryTree(const QString &root, const QString &path);

  private:
    SettingsStore &m_store;
};

} // namespace tolvo
