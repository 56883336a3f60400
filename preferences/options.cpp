// SPDX-License-Identifier: MIT
#include "preferences/options.h"

#include "base/conversions.h"
#include "base/numbers.h"
#include "base/strings.h"

#include <tuple>

namespace tolvo {

namespace {

constexpr const PreferenceKeys &preferences = settingKeys.preferences;

template <class Options, class Value, class Key>
struct Field {
    Value Options::*member;
    Key key;
};
// Some compilers don't deduce this for an aggregate.
template <class Options, class Value, class Key>
Field(Value Options::*, Key) -> Field<Options, Value, Key>;

// In the order in which the store gets them: the fonts first.
constexpr std::tuple dialogFields{Field{&ProgramOptions::useProportional, preferences.useProportional},
                                  Field{&ProgramOptions::showTips, preferences.showTips},
                                  Field{&ProgramOptions::checkUpdates, preferences.checkUpdates},
                                  Field{&ProgramOptions::allowStats, preferences.allowStats},
                                  Field{&ProgramOptions::sounds, preferences.sounds},
                                  Field{&ProgramOptions::showTroubles, settingKeys.hints.troubles},
                                  Field{&ProgramOptions::provider, settingKeys.spelling.provider}};
constexpr std::tuple wordFields{Field{&WordOptions::extensions, preferences.userExtensions},
                                Field{&WordOptions::fullDomainList, preferences.fullDomainList}};

constexpr std::tuple typedTextFields{
    Field{&TypedTextOptions::skipDigits, settingKeys.typedText.skipDigits},
    Field{&TypedTextOptions::skipCapitals, settingKeys.typedText.skipCapitals},
    Field{&TypedTextOptions::skipAddresses, settingKeys.typedText.skipAddresses},
    Field{&TypedTextOptions::skipFileNames, settingKeys.typedText.skipFileNames},
    Field{&TypedTextOptions::curlyApostrophe, settingKeys.typedText.curlyApostrophe}};

void forEach(const auto &fields, auto visit) {
    std::apply([&visit](const auto &...field) { (visit(field), ...); }, fields);
}

Font loadFont(const SettingsStore &store, const FontKeys &keys, const Font &fallback) {
    const double size = GetPreference(store, keys.size, fallback.size);
    return {.name = GetPreference(store, keys.name, fallback.name),
            .size = size > 0 ? size : fallback.size,
            .bold = GetPreference(store, keys.bold, fallback.bold),
            .italic = GetPreference(store, keys.italic, fallback.italic)};
}

void saveFont(SettingsStore &store, const FontKeys &keys, const Font &font) {
    set(store, keys.name, font.name);
    set(store, keys.bold, font.bold);
    set(store, keys.italic, font.italic);
    set(store, keys.size, font.size);
}

Font defaultFont(const FontKeys &keys) {
    return {.name = keys.name.otherwise(),
            .size = keys.size.otherwise(),
            .bold = keys.bold.otherwise(),
            .italic = keys.italic.otherwise()};
}

} // namespace

WordOptions loadWordOptions(const SettingsStore &store) {
    WordOptions options;
    forEach(wordFields, [&](const auto &field) { options.*field.member = get(store, field.key); });
    return options;
}

TypedTextOptions loadTypedTextOptions(const SettingsStore &store) {
    TypedTextOptions options;
    forEach(typedTextFields,
            [&](const auto &field) { options.*field.member = getOrDefault(store, field.key); });
    return options;
}

ProgramOptions loadOptions(const SettingsStore &store, const Font &ownFont) {
    ProgramOptions options;
    static_cast<WordOptions &>(options) = loadWordOptions(store);
    static_cast<TypedTextOptions &>(options) = loadTypedTextOptions(store);
    options.fonts = {loadFont(store, preferences.proportional, ownFont),
                     loadFont(store, preferences.fixed, defaultFont(preferences.fixed))};
    options.wordWrap = get(store, preferences.wordWrap);
    forEach(dialogFields, [&](const auto &field) { options.*field.member = getOrDefault(store, field.key); });
    return options;
}

void saveOptions(SettingsStore &store, const ProgramOptions &options) {
    SettingsStore::Transaction all(store);
    saveFont(store, preferences.proportional, options.fonts[0]);
    saveFont(store, preferences.fixed, options.fonts[1]);
    const auto save = [&](const auto &field) { set(store, field.key, options.*field.member); };
    forEach(dialogFields, save);
    forEach(wordFields, save);
    forEach(typedTextFields, save);
    all.commit();
}

QString FontDescription(const Font &font) {
    return font.name + (font.bold ? QStringLiteral(" Bold") : QString()) +
           (font.italic ? QStringLiteral(" Italic") : QString()) + u' ' +
           QString::number(static_cast<int>(roundHalfToEven(font.size))) + QStringLiteral(" pt");
}

QString lastCheckText(const QString &startDate, const QDateTime &now) {
    const std::optional<QDateTime> start = dateIn(startDate);
    if (!start)
        return QStringLiteral("You have never checked for updates");
    const qint64 days = start->secsTo(now) / (24LL * 60 * 60);
    return FillTemplate(QStringLiteral("You last checked for updates %0 days ago"), {groupedNumber(days)});
}

} // namespace tolvo
