// SPDX-License-Identifier: MIT
// The section of the search window by the names of its keys. All other keys stand in settings_keys.h, those
// of the tools with their structs (text/tool_settings.h).
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

namespace tolvo {

class SettingsStore;

/// The default of a key as the table tells it. Asking for a key that the table doesn't have is a mistake of
/// the programmer and fails.
[[nodiscard]] QString settingsDefault(QStringView section, QStringView key);

/// GetSetting with the table's default, in the settings tree.
[[nodiscard]] QString readSetting(const SettingsStore &store, QStringView section, QStringView key);
/// A flag, in whatever form it stands there: a word or a number. What is neither is off.
[[nodiscard]] bool readFlag(const SettingsStore &store, QStringView section, QStringView key);
/// Fails for a key that the table doesn't have.
void writeSetting(SettingsStore &store, QStringView section, QStringView key, const QString &value);

/// The list of a section, see SettingList.
[[nodiscard]] QStringList readList(const SettingsStore &store, const QString &section);
void writeList(SettingsStore &store, const QString &section, const QStringList &entries);

} // namespace tolvo
