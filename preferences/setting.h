// SPDX-License-Identifier: MIT
// One key of the settings store as a value, and what can be done with it. The keys that there are stand in
// settings_keys.h:
//
//     if (get(store, settingKeys.preferences.sounds)) ...      // bool
//     set(store, settingKeys.spelling.provider, 2);            // writes "2"
#pragma once

#include "base/failure.h"
#include "preferences/settings_store.h"
#include "preferences/written_forms.h"

#include <QStringList>
#include <optional>

namespace tolvo {

enum class SettingsTree { Settings, Statistics };
/// The application name under which the store keeps a tree.
[[nodiscard]] QString treeName(SettingsTree tree);

/// Where a key lies: in a section of that path.
struct Section {
    QStringView name;
    SettingsTree tree = SettingsTree::Settings;

    [[nodiscard]] QString path() const { return name.toString(); }
};

/// A key: where it lies, its name, its type and written form (`Form`), its default. Its `Place` says what
/// else is needed to find it, such as the number of a PowerButton: that follows the key in the functions
/// below. Without a default, a key that isn't there reads as the empty text.
template <class Form, class Place = Section>
struct Setting {
    using Value = typename Form::Value;

    Place section;
    QStringView name;
    std::optional<typename Form::Default> defaultValue = std::nullopt;

    [[nodiscard]] QString defaultText() const {
        return defaultValue ? Form::written(*defaultValue) : QString();
    }
    /// The default as a value.
    [[nodiscard]] Value otherwise() const { return Form::read(defaultText()); }
    /// The same key for a reader that has a default of its own.
    [[nodiscard]] constexpr Setting withDefault(const typename Form::Default &other) const {
        return {section, name, other};
    }
};

/// A list of texts in a section of its own. Its keys are single characters: "a" for position 0, "b" for 1,
/// and past "z" the characters that follow.
struct SettingList {
    Section section;
};

/// A section of counters; their keys are the tokens of tools.
struct CounterSection {
    Section section;

    /// One counter. The token must outlive the key.
    [[nodiscard]] Setting<forms::Count> of(QStringView token) const { return {section, token, 0}; }
};

/// The text as it stands in the store; the text of the default if there is none.
template <class Form, class Place, class... Where>
[[nodiscard]] QString textOf(const SettingsStore &store, const Setting<Form, Place> &key,
                             const Where &...where) {
    return store.GetSetting(treeName(key.section.tree), key.section.path(where...), key.name.toString(),
                            key.defaultText());
}

/// Whether the store holds a text for the key that is not empty.
template <class Form>
[[nodiscard]] bool isSet(const SettingsStore &store, const Setting<Form> &key) {
    return !store.GetSetting(treeName(key.section.tree), key.section.path(), key.name.toString()).isEmpty();
}

/// The value. A text that the key's form refuses is a Failure.
template <class Form, class Place, class... Where>
[[nodiscard]] typename Form::Value get(const SettingsStore &store, const Setting<Form, Place> &key,
                                       const Where &...where) {
    return Form::read(textOf(store, key, where...));
}

/// The value, and the default for a text that the key's form refuses.
template <class Form>
[[nodiscard]] typename Form::Value getOrDefault(const SettingsStore &store, const Setting<Form> &key) {
    try {
        return get(store, key);
    } catch (const Failure &) {
        return key.otherwise();
    }
}

/// GetPreference: a value that is missing or empty gives the fallback. It serves the font keys.
template <class Form>
[[nodiscard]] typename Form::Value GetPreference(const SettingsStore &store, const Setting<Form> &key,
                                                 const typename Form::Value &fallback) {
    return isSet(store, key) ? get(store, key) : fallback;
}

/// Writes the value in the key's form.
template <class Form, class Place, class... Where>
void set(SettingsStore &store, const Setting<Form, Place> &key, const typename Form::Value &value,
         const Where &...where) {
    store.SaveSetting(treeName(key.section.tree), key.section.path(where...), key.name.toString(),
                      Form::written(value));
}

/// Adds 1 to a counter, atomically. A stored text that is not a number is a Failure (type mismatch).
void increment(SettingsStore &store, const Setting<forms::Count> &counter);
/// Takes a counter away, so that it reads as 0.
void remove(SettingsStore &store, const Setting<forms::Count> &counter);

/// The pairs of a section in the order of the store; none if there is no such section.
[[nodiscard]] QList<SettingsStore::Pair> pairsOf(const SettingsStore &store, const Section &section);

/// The entries in the order of their positions, whatever the order of the keys in the store.
[[nodiscard]] QStringList get(const SettingsStore &store, const SettingList &list);
/// Replaces the list.
void set(SettingsStore &store, const SettingList &list, const QStringList &entries);

} // namespace tolvo
