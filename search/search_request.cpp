// SPDX-License-Identifier: MIT
#include "search/search_request.h"

#include "base/CParams.h"
#include "base/conversions.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "preferences/settings_table.h"
#include "search/joined.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>

namespace tolvo {

namespace {

constexpr QStringView section = u"Search";

// The written forms: how a value stands in the store and in a settings string, and how it is read from there.
// Nothing is written for a value that isn't chosen.

using Written = std::optional<QString>;

struct Text {
    static Written stored(const QString &value) { return value; }
    static Written written(const QString &value) { return value; }
    static void takeStored(QString &value, const QString &text) { value = text; }
    static void take(QString &value, const QString &text) { value = text; }
};

struct Check {
    static Written stored(bool value) { return flagDigit(value); }
    static Written written(bool value) { return flagDigit(value); }
    static void takeStored(bool &value, const QString &text) { value = saysYes(text); }
    static void take(bool &value, const QString &text) { value = saysYes(text); }
};

/// A number from `lowest` to `highest` that counts the values of a type from 0. Any other one means
/// `otherwise`.
struct Number {
    int lowest;
    int highest;
    int otherwise;

    [[nodiscard]] bool allows(const QString &text) const {
        const double number = std::trunc(ValueOf(text));
        return number >= lowest && number <= highest;
    }
    template <class Value>
    [[nodiscard]] Written stored(Value value) const {
        return QString::number(static_cast<int>(value) + lowest);
    }
    template <class Value>
    [[nodiscard]] Written written(Value value) const {
        return stored(value);
    }
    template <class Value>
    void take(Value &value, const QString &text) const {
        value = static_cast<Value>((allows(text) ? static_cast<int>(ValueOf(text)) : otherwise) - lowest);
    }
    template <class Value>
    void takeStored(Value &value, const QString &text) const {
        take(value, text);
    }
};

/// A word in the store, its own letter in a settings string. Anything else leaves the direction as it is.
struct Direction {
    struct Name {
        SearchDirection direction;
        QStringView stored;
        QStringView letter;
    };
    static constexpr std::array<Name, 3> names = {{{SearchDirection::Down, u"Down", u"D"},
                                                   {SearchDirection::Up, u"Up", u"U"},
                                                   {SearchDirection::FromStart, u"Start", u"S"}}};
    using Value = std::optional<SearchDirection>;

    static Written name(Value value, QStringView Name::*form) {
        for (const Name &name : names) {
            if (value == name.direction)
                return (name.*form).toString();
        }
        return {};
    }
    static void choose(Value &value, const QString &text, QStringView Name::*form) {
        for (const Name &name : names) {
            if (text == name.*form)
                value = name.direction;
        }
    }
    static Written stored(Value value) { return name(value, &Name::stored); }
    static Written written(Value value) { return name(value, &Name::letter); }
    static void takeStored(Value &value, const QString &text) { choose(value, text, &Name::stored); }
    static void take(Value &value, const QString &text) { choose(value, text, &Name::letter); }
};

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

template <class Value, class Form>
struct Field {
    Value SearchRequest::*member;
    QStringView storeKey; ///< empty: the section doesn't hold it
    QStringView stringKey;
    Form form;
    Present present = Present::Always;
};
template <class Value, class Form>
Field(Value SearchRequest::*, const char16_t *, const char16_t *, Form, Present) -> Field<Value, Form>;

using R = SearchRequest;
constexpr Number modeNumber{1, 3, 1};
constexpr auto fields = std::tuple{
    Field{&R::mode, u"Tab", u"Mode", modeNumber, Present::Always},
    Field{&R::find, u"", u"Find", Text{}, Present::Always},
    Field{&R::matchCase, u"MatchCase", u"MatchCase", Check{}, Present::Always},
    Field{&R::direction, u"Direction", u"Direction", Direction{}, Present::Always},
    Field{&R::wholeWords, u"WholeWords", u"WholeWords", Check{}, Present::Always},
    Field{&R::specialChars, u"AllowSpecial", u"SpecialChars", Check{}, Present::ExceptRegularExpression},
    Field{&R::replace, u"", u"Replace", Text{}, Present::Replacing},
    Field{&R::smartReplace, u"SmartReplace", u"SmartReplace", Check{}, Present::Replacing},
    Field{&R::replaceAll, u"", u"ReplaceAll", Check{}, Present::Replacing},
    Field{&R::anchor, u"Anchor", u"Anchor", Number{0, R::anywhere, R::anywhere}, Present::Wildcard},
    Field{&R::decimalSep, u"DecimalSep", u"DecimalSep", Text{}, Present::Wildcard},
    Field{&R::groupingSep, u"GroupingSep", u"GroupingSep", Text{}, Present::Wildcard},
};

template <class Visit>
void forEachField(Visit visit) {
    std::apply([&](const auto &...field) { (visit(field), ...); }, fields);
}

std::optional<SearchDirection> withDownAndFromStartSwapped(std::optional<SearchDirection> direction) {
    if (!direction || direction == SearchDirection::Up)
        return direction;
    return direction == SearchDirection::Down ? SearchDirection::FromStart : SearchDirection::Down;
}

void requireKnownMode(const QString &mode) {
    if (!modeNumber.allows(mode) && std::trunc(ValueOf(mode)) != 0)
        throw Failure(
            failureNumber::invalidArgument,
            QStringLiteral("There is no search mode %1").arg(numberText(std::trunc(ValueOf(mode)))));
}

} // namespace

void SearchRequest::load(const SettingsStore &store) {
    forEachField([&](const auto &field) {
        if (!field.storeKey.isEmpty())
            field.form.takeStored(this->*field.member, readSetting(store, section, field.storeKey));
    });
}

void SearchRequest::save(SettingsStore &store) const {
    forEachField([&](const auto &field) {
        const Written text = field.form.stored(this->*field.member);
        if (!field.storeKey.isEmpty() && text)
            writeSetting(store, section, field.storeKey, *text);
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
    modeNumber.take(request.mode, mode);
    forEachField([&](const auto &field) {
        const bool isGroupingSep = field.stringKey == u"GroupingSep";
        const QString key = (isGroupingSep ? reading.groupingSepKey : field.stringKey).toString();
        if (params.contains(key) && isPresent(field.present, request.mode, replacing))
            field.form.take(request.*field.member, params.arg(key));
    });
    if (reading.swapsDownAndFromStart && replacing && request.mode == SearchMode::RegularExpression)
        request.direction = withDownAndFromStartSwapped(request.direction);
    return request;
}

QString settingsString(const SearchRequest &request, bool replacing) {
    QString result;
    forEachField([&](const auto &field) {
        const Written value = field.form.written(request.*field.member);
        if (value && isPresent(field.present, request.mode, replacing))
            result += joined({result.isEmpty() ? u"" : u", ", field.stringKey, u"=", *value});
    });
    return result;
}

} // namespace tolvo
