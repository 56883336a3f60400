// SPDX-License-Identifier: MIT
// What a field of tool settings is: a member with its keys and its written form. A settings struct lists its
// fields beside its members (tool_settings.h); the member's initializer is the default.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <limits>

namespace tolvo {

/// The written forms. Each says how a value stands in the store (`stored`) and in a settings string
/// (`written`), and how it is read: strictly for an Action (`fromAction`, a wrong text is a Failure),
/// leniently from the store (`fromStore`) and into a dialog's controls (`take`). A stored value that can't be
/// read must not keep the user from the dialog that would put it right.
namespace toolForms {

/// A whole number. What is outside the limits counts as the nearest one, a text that is not a number as 0.
struct Number {
    int lowest = std::numeric_limits<int>::min();
    int highest = std::numeric_limits<int>::max();

    [[nodiscard]] static QString stored(int value) { return QString::number(value); }
    [[nodiscard]] static QString written(int value) { return QString::number(value); }
    [[nodiscard]] int fromStore(const QString &text) const;
    [[nodiscard]] int fromAction(const QString &text) const;
    void take(int &value, const QString &text) const;
};

/// One of some words in the store, its number from 0 in a settings string.
struct Choice : Number {
    const char16_t *const *words;

    template <int count>
    explicit constexpr Choice(const char16_t *const (&all)[count]) : Number{0, count - 1}, words(all) {}
    [[nodiscard]] QString stored(int value) const { return QString::fromUtf16(words[value]); }
    /// Any other word counts as the last.
    [[nodiscard]] int fromStore(const QString &text) const;
};

/// "True" or "False".
struct Flag {
    [[nodiscard]] static QString stored(bool value);
    [[nodiscard]] static QString written(bool value);
    /// Neither word counts as a number.
    [[nodiscard]] static bool fromStore(const QString &text);
    [[nodiscard]] static bool fromAction(const QString &text);
    /// Neither word leaves the control alone.
    static void take(bool &value, const QString &text);
};

/// A flag whose every other stored text counts as "False".
struct ComparedFlag : Flag {
    [[nodiscard]] static bool fromStore(const QString &text);
};

/// A flag that only "0" clears for an Action, so that the word "False" doesn't: the rule is the reverse of
/// the other flags, and what users have stored relies on it.
struct FlagUnlessZero : ComparedFlag {
    [[nodiscard]] static bool fromAction(const QString &text);
};

/// The state of a check box, "0" or "1".
struct Check : Flag {
    [[nodiscard]] static QString stored(bool value);
    [[nodiscard]] static QString written(bool value);
    static void take(bool &value, const QString &text);
};

/// A check box that only "1" sets for an Action; anything else, nothing included, clears it.
struct CheckIfOne : Check {
    [[nodiscard]] static bool fromAction(const QString &text);
};

struct Text {
    [[nodiscard]] static QString stored(const QString &value) { return value; }
    /// A text that a settings string can't hold is left out: the dialogs refuse one that the tool would use.
    [[nodiscard]] static QString written(const QString &value);
    [[nodiscard]] static QString fromStore(const QString &text) { return text; }
    [[nodiscard]] static QString fromAction(const QString &text) { return text; }
    static void take(QString &value, const QString &text) { value = text; }
};

inline constexpr Number anyNumber;
inline constexpr Number positiveNumber{.lowest = 1};
inline constexpr Flag flag;
inline constexpr ComparedFlag comparedFlag;
inline constexpr FlagUnlessZero flagUnlessZero;
inline constexpr Check check;
inline constexpr CheckIfOne checkIfOne;
inline constexpr Text anyText;

} // namespace toolForms

/// One value of a settings struct.
template <class Settings, class Value, class Form>
struct Field {
    Value Settings::*member;
    QStringView storeKey;  ///< in the section of the struct
    QStringView stringKey; ///< in settings strings
    Form form;

    constexpr Field(Value Settings::*value, const char16_t *inStore, const char16_t *inString, Form written)
        : member(value), storeKey(inStore), stringKey(inString), form(written) {}
    /// The same key in both.
    constexpr Field(Value Settings::*value, const char16_t *key, Form written)
        : Field(value, key, key, written) {}
};

/// A list of texts that only the store has, in a section of its own.
template <class Settings>
struct ListField {
    QStringList Settings::*member;
    QStringView section;

    constexpr ListField(QStringList Settings::*list, const char16_t *ofStore)
        : member(list), section(ofStore) {}
};

} // namespace tolvo
