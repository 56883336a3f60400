// SPDX-License-Identifier: MIT
#include "text/tool_settings.h"

#include "base/CParams.h"

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
    field.list;
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
void load(const SettingsStore &store, Settings &settings, const Field<Settings, Value, Form> &field) {
    const Settings defaults;
    settings.*field.member = static_cast<Value>(get(store, field.key(defaults)));
}

template <class Settings>
void load(const SettingsStore &store, Settings &settings, const ListField<Settings> &field) {
    settings.*field.member = get(store, field.list);
}

template <class Settings, class Value, class Form>
void save(SettingsStore &store, const Settings &settings, const Field<Settings, Value, Form> &field) {
    using Stored = typename Form::Stored::Value;
    set(store, field.key(settings), static_cast<Stored>(settings.*field.member));
}

template <class Settings>
void save(SettingsStore &store, const Settings &settings, const ListField<Settings> &field) {
    set(store, field.list, settings.*field.member);
}

} // namespace

QString IndentSettings::prefix() const {
    switch (choice) {
    case Choice::Tab:
        return QStringLiteral("\t");
    case Choice::Spaces:
        return QString(std::clamp(spaces, 0, mostSpaces), u' ');
    case Choice::Text:
        break;
    }
    return text;
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
    return pairs.join(settingsSeparator);
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
    forEachValue(settings, [&]<class Value>(Value &value, const auto &field) {
        value = static_cast<Value>(field.form.fromAction(params.arg(field.stringKey.toString())));
    });
    return settings;
}

} // namespace tolvo
