// SPDX-License-Identifier: MIT
#include "search/search_request.h"

#include "base/CParams.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "preferences/settings_keys.h"
#include "search/joined.h"

#include <array>
#include <cmath>
#include <tuple>
#include <type_traits>

namespace tolvo {

namespace {

using Direction = std::optional<SearchDirection>;

/// A direction is a word in the store and its letter in a settings string.
struct DirectionName {
    SearchDirection direction;
    QStringView word;
    QStringView letter;
};
constexpr std::array<DirectionName, 3> directionNames = {{{SearchDirection::Down, u"Down", u"D"},
                                                          {SearchDirection::Up, u"Up", u"U"},
                                                          {SearchDirection::FromStart, u"Start", u"S"}}};

/// Nothing for a direction that isn't chosen.
std::optional<QString> nameOf(Direction direction, QStringView DirectionName::*form) {
    for (const DirectionName &name : directionNames) {
        if (direction == name.direction)
            return (name.*form).toString();
    }
    return {};
}

/// A text that is no name leaves the direction as it is.
void takeNamed(Direction &direction, const QString &text, QStringView DirectionName::*form) {
    for (const DirectionName &name : directionNames) {
        if (text == name.*form)
            direction = name.direction;
    }
}

/// Which settings strings have a key.
enum class Present { Always, ExceptRegularExpression, Replacing, Wildcard };

bool isPresent(Present present, SearchMode mode, bool replacing) {
    switch (present) {
    case Present::ExceptRegularExpression:
        return mode != SearchMode::RegularExpression;
    case Present::Replacing:
        return replacing;
    case Present::Wildcard:
        return mode == SearchMode::Wildcard;
    case Present::Always:
        break;
    }
    return true;
}

/// A member with its keys. All but the direction stand in a settings string as in the store.
template <class Value, class Form>
struct Field {
    Value SearchRequest::*member;
    QStringView stringKey;
    std::optional<Setting<Form>> key; ///< none if only settings strings hold the member
    Present present;

    constexpr Field(Value SearchRequest::*value, const char16_t *inString, const Setting<Form> &inStore,
                    Present when)
        : member(value), stringKey(inString), key(inStore), present(when) {}
    constexpr Field(Value SearchRequest::*value, const char16_t *inString, Form, Present when)
        : member(value), stringKey(inString), present(when) {}

    static constexpr bool isDirection = std::is_same_v<Value, Direction>;

    void load(const SettingsStore &store, Value &value) const {
        if constexpr (isDirection)
            takeNamed(value, get(store, *key), &DirectionName::word);
        else
            value = static_cast<Value>(get(store, *key));
    }
    void save(SettingsStore &store, const Value &value) const {
        if constexpr (!isDirection)
            set(store, *key, static_cast<typename Form::Value>(value));
        else if (const auto name = nameOf(value, &DirectionName::word))
            set(store, *key, *name);
    }
    [[nodiscard]] static std::optional<QString> written(const Value &value) {
        if constexpr (isDirection)
            return nameOf(value, &DirectionName::letter);
        else
            return Form::written(static_cast<typename Form::Value>(value));
    }
    static void take(Value &value, const QString &text) {
        if constexpr (isDirection)
            takeNamed(value, text, &DirectionName::letter);
        else
            value = static_cast<Value>(Form::read(text));
    }
};

using R = SearchRequest;
constexpr const SearchKeys &keys = settingKeys.search;
constexpr auto fields = std::tuple{
    Field{&R::mode, u"Mode", keys.mode, Present::Always},
    Field{&R::find, u"Find", forms::Text(), Present::Always},
    Field{&R::matchCase, u"MatchCase", keys.matchCase, Present::Always},
    Field{&R::direction, u"Direction", keys.direction, Present::Always},
    Field{&R::wholeWords, u"WholeWords", keys.wholeWords, Present::Always},
    Field{&R::specialChars, u"SpecialChars", keys.specialChars, Present::ExceptRegularExpression},
    Field{&R::replace, u"Replace", forms::Text(), Present::Replacing},
    Field{&R::smartReplace, u"SmartReplace", keys.smartReplace, Present::Replacing},
    Field{&R::replaceAll, u"ReplaceAll", forms::Check(), Present::Replacing},
    Field{&R::anchor, u"Anchor", keys.anchor, Present::Wildcard},
    Field{&R::decimalSep, u"DecimalSep", keys.decimalSep, Present::Wildcard},
    Field{&R::groupingSep, u"GroupingSep", keys.groupingSep, Present::Wildcard},
};
constexpr const auto &modeField = std::get<0>(fields);

template <class Visit>
void forEachField(Visit visit) {
    std::apply([&](const auto &...field) { (visit(field), ...); }, fields);
}

std::optional<SearchDirection> withDownAndFromStartSwapped(std::optional<SearchDirection> direction) {
    if (!direction || direction == SearchDirection::Up)
        return direction;
    return direction == SearchDirection::Down ? SearchDirection::FromStart : SearchDirection::Down;
}

/// 0, which a missing key gives too, stands for simple search.
void requireKnownMode(const QString &mode) {
    const double number = std::trunc(ValueOf(mode));
    if (number < 0 || number > static_cast<int>(SearchMode::RegularExpression))
        throw Failure(failureNumber::invalidArgument,
                      QStringLiteral("There is no search mode %1").arg(numberText(number)));
}

} // namespace

void SearchRequest::load(const SettingsStore &store) {
    forEachField([&](const auto &field) {
        if (field.key)
            field.load(store, this->*field.member);
    });
}

void SearchRequest::save(SettingsStore &store) const {
    forEachField([&](const auto &field) {
        if (field.key)
            field.save(store, this->*field.member);
    });
}

RequestReading windowReading(const SearchRequest &present) {
    return {.missing = present};
}

RequestReading actionReading() {
    RequestReading reading{
        .unknownModeFails = true, .groupingSepKey = u"DigitGrpSep", .swapsDownAndFromStart = true};
    reading.missing.smartReplace = false;
    reading.missing.groupingSep.clear();
    return reading;
}

SearchRequest readRequest(const CParams &params, bool replacing, const RequestReading &reading) {
    const QString mode = params.arg(QStringLiteral("Mode"));
    if (reading.unknownModeFails)
        requireKnownMode(mode);
    SearchRequest request = reading.missing;
    modeField.take(request.mode, mode);
    forEachField([&](const auto &field) {
        const bool isGroupingSep = field.stringKey == u"GroupingSep";
        const QString key = (isGroupingSep ? reading.groupingSepKey : field.stringKey).toString();
        if (params.contains(key) && isPresent(field.present, request.mode, replacing))
            field.take(request.*field.member, params.arg(key));
    });
    if (reading.swapsDownAndFromStart && replacing && request.mode == SearchMode::RegularExpression)
        request.direction = withDownAndFromStartSwapped(request.direction);
    return request;
}

QString settingsString(const SearchRequest &request, bool replacing) {
    QString result;
    forEachField([&](const auto &field) {
        const std::optional<QString> value = field.written(request.*field.member);
        if (value && isPresent(field.present, request.mode, replacing))
            result += joined({result.isEmpty() ? u"" : u", ", field.stringKey, u"=", *value});
    });
    return result;
}

} // namespace tolvo
