// SPDX-License-Identifier: MIT
#include "preferences/settings_table.h"

#include "base/application.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "preferences/settings_keys.h"

#include <tuple>

namespace tolvo {

namespace {

/// Calls visit(key) for each key of the search window.
template <class Visit>
void forEachSearchKey(Visit visit) {
    constexpr const SearchKeys &keys = settingKeys.search;
    const auto all =
        std::tie(keys.wholeWords, keys.matchCase, keys.smartReplace, keys.specialChars, keys.direction,
                 keys.expanded, keys.anchor, keys.decimalSep, keys.groupingSep, keys.mode);
    std::apply([&visit](const auto &...key) { (visit(key), ...); }, all);
}

} // namespace

QString settingsDefault(QStringView section, QStringView key) {
    std::optional<QString> found;
    forEachSearchKey([&](const auto &candidate) {
        if (section == candidate.section.name && key == candidate.name)
            found = candidate.defaultText();
    });
    if (found)
        return *found;
    throw Failure(failureNumber::invalidArgument,
                  QStringLiteral("There is no setting '%1' in '%2'").arg(key, section));
}

QString readSetting(const SettingsStore &store, QStringView section, QStringView key) {
    return store.GetSetting(applicationTitle(), section.toString(), key.toString(),
                            settingsDefault(section, key));
}

bool readFlag(const SettingsStore &store, QStringView section, QStringView key) {
    return saysYes(readSetting(store, section, key));
}

void writeSetting(SettingsStore &store, QStringView section, QStringView key, const QString &value) {
    (void)settingsDefault(section, key); // fails as reading does
    store.SaveSetting(applicationTitle(), section.toString(), key.toString(), value);
}

QStringList readList(const SettingsStore &store, const QString &section) {
    return get(store, SettingList{{section}});
}

void writeList(SettingsStore &store, const QString &section, const QStringList &entries) {
    set(store, SettingList{{section}}, entries);
}

} // namespace tolvo
