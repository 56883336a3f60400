// SPDX-License-Identifier: MIT
#include "text/tool_settings.h"

#include "base/application.h"
#include "preferences/settings_store.h"
#include "preferences/settings_table.h"

#include <algorithm>
#include <type_traits>

namespace tolvo {

namespace {

/// Calls visit(struct, field) for each field of the struct that the variant holds.
template <class Any, class Visit>
void forEachField(Any &any, Visit visit) {
    std::visit(
        [&visit](auto &settings) {
            std::apply([&](const auto &...field) { (visit(settings, field), ...); },
                       std::remove_reference_t<decltype(settings)>::fields);
        },
        any);
}

template <class Field>
constexpr bool isList = requires(const Field &field) {
    field.section;
};

/// The same without the lists, which only the store has.
template <class Any, class Visit>
void forEachValue(Any &any, Visit visit) {
    forEachField(any, [&visit](auto &settings, const auto &field) {
        if constexpr (!isList<std::remove_cvref_t<decltype(field)>>)
            visit(settings.*field.member, field);
    });
}

template <class Settings, class Value, class Form>
QString defaultOf(const Field<Settings, Value, Form> &field) {
    return field.form.stored(Settings().*field.member);
}

template <class Settings, class Value, class Form>
void load(const SettingsStore &store, Settings &settings, const Field<Settings, Value, Form> &field) {
    settings.*field.member = field.form.fromStore(store.GetSetting(
        applicationTitle(), Settings::section.toString(), field.storeKey.toString(), defaultOf(field)));
}

template <class Settings>
void load(const SettingsStore &store, Settings &settings, const ListField<Settings> &field) {
    settings.*field.member = readList(store, field.section.toString());
}

template <class Settings, class Value, class Form>
void save(SettingsStore &store, const Settings &settings, const Field<Settings, Value, Form> &field) {
    store.SaveSetting(applicationTitle(), Settings::section.toString(), field.storeKey.toString(),
                      field.form.stored(settings.*field.member));
}

template <class Settings>
void save(SettingsStore &store, const Settings &settings, const ListField<Settings> &field) {
    writeList(store, field.section.toString(), settings.*field.member);
}

template <class Settings, class Value, class Form>
StoredToolSetting stored(const Field<Settings, Value, Form> &field) {
    return {Settings::section, field.storeKey, defaultOf(field)};
}

template <class Settings>
StoredToolSetting stored(const ListField<Settings> &field) {
    return {field.section, {}, {}};
}

} // namespace

QString IndentSettings::prefix() const {
    switch (choice) {
    case WithTab:
        return QStringLiteral("\t");
    case WithSpaces:
        return QString(std::clamp(spaces, 0, mostSpaces), u' ');
    default:
        return text;
    }
}

QString BulletSettings::prefix() const {
    return bullet + (tab ? QStringLiteral("\t") : QString(std::clamp(spaces, 0, mostSpaces), u' '));
}

ToolSettings loadSettings(ToolSettings settings, const SettingsStore &store) {
    forEachField(settings, [&](auto &values, const auto &field) { load(store, values, field); });
    return settings;
}

void saveSettings(SettingsStore &store, const ToolSettings &settings) {
    forEachField(settings, [&](const auto &values, const auto &field) { save(store, values, field); });
}

QString settingsString(const ToolSettings &settings) {
    QStringList pairs;
    forEachValue(settings, [&](const auto &value, const auto &field) {
        pairs.append(field.stringKey.toString() + u'=' + field.form.written(value));
    });
    return pairs.join(QStringLiteral(", "));
}

void applySettings(ToolSettings &settings, const CParams &params) {
    forEachValue(settings, [&](auto &value, const auto &field) {
        const QString key = field.stringKey.toString();
        if (params.contains(key))
            field.form.take(value, params.arg(key));
    });
}

ToolSettings settingsFromAction(ToolSettings settings, const CParams &params) {
    std::visit([](auto &values) { values = {}; }, settings);
    forEachValue(settings, [&](auto &value, const auto &field) {
        value = field.form.fromAction(params.arg(field.stringKey.toString()));
    });
    return settings;
}

QList<StoredToolSetting> storedToolSettings() {
    QList<StoredToolSetting> all;
    forEachToolSettings([&all](const auto &settings) {
        std::apply([&all](const auto &...field) { (all.append(stored(field)), ...); }, settings.fields);
    });
    return all;
}

} // namespace tolvo
