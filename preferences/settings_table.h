// SPDX-License-Identifier: MIT
// The sections and keys of the two trees with their defaults: the one authority for them. The settings of the
// tools stand with their structs (text/tool_settings.h).
#pragma once

#include <QString>
#include <QStringView>
#include <span>

namespace tolvo {

class SettingsStore;

/// One value of the settings tree, or of the statistics tree if `statistics` is set. Rows whose key is empty
/// stand for lists and for sections that carry a number ("PowerButtons\Button n").
struct SettingsRow {
    const char16_t *section;
    const char16_t *key;
    const char16_t *defaultValue;
    bool statistics = false;
};

[[nodiscard]] std::span<const SettingsRow> settingsTable();

/// The spelling dialog takes an absent `Provider` for 0, unlike all others, which take it for 1.
inline constexpr int providerOfSpellingDialog = 0;
/// The list of Hunspell languages has other fields in another order where the language dialog reads it.
inline constexpr QStringView hunLangListOfLanguageDialog = u"en-gb|English (UK)|English (UK)";

/// The default of a key as the table tells it. Asking for a key that the table doesn't have is a mistake of
/// the programmer and fails.
[[nodiscard]] QString settingsDefault(QStringView section, QStringView key);

/// GetSetting with the table's default, in the settings tree.
[[nodiscard]] QString readSetting(const SettingsStore &store, QStringView section, QStringView key);
/// A flag, in whatever form it stands there: a word or a number. What is neither is off.
[[nodiscard]] bool readFlag(const SettingsStore &store, QStringView section, QStringView key);
void writeSetting(SettingsStore &store, QStringView section, QStringView key, const QString &value);

/// GetPreference: `Preferences`/key; a value that is missing or empty gives the fallback. It serves the font
/// keys.
[[nodiscard]] QString GetPreference(const SettingsStore &store, const QString &key, const QString &fallback);

/// A list whose keys are single characters: "a" for position 0, "b" for 1, and past "z" the characters that
/// follow. The order is that of the positions, whatever the order of the keys in the store.
[[nodiscard]] QStringList readList(const SettingsStore &store, const QString &section);
/// Replaces the list.
void writeList(SettingsStore &store, const QString &section, const QStringList &entries);

} // namespace tolvo
