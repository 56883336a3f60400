// SPDX-License-Identifier: MIT
// What a field of tool settings is: a member with its keys and its written form. A settings struct lists its
// fields beside its members (tool_settings.h); the member's initializer is the default.
#pragma once

#include "base/CParams.h"
#include "preferences/setting.h"

#include <QString>
#include <QStringList>
#include <QStringView>
#include <algorithm>
#include <limits>

namespace tolvo {

/// The written forms. Each says how a value stands in the store (`Stored`, a form of the store) and in a
/// settings string (`written`), and how a settings string is read: strictly for an Action (`fromAction`, a
/// wrong text is a Failure), leniently into a dialog's controls (`take`). The store is read leniently too: a
/// value that can't be read must not keep the user from the dialog that would put it right.
namespace toolForms {

/// A whole number, or a value of an enumeration by its number. What is outside the limits counts as the
/// nearest one, a text that is not a number as 0.
template <int lowest = std::numeric_limits<int>::min(), int highest = std::numeric_limits<int>::max()>
struct Number {
    using Stored = forms::Nearest<lowest, highest>;

    template <class Value>
    [[nodiscard]] static QString written(Value value) {
        return QString::number(static_cast<int>(value));
    }
    [[nodiscard]] static int fromAction(const QString &text) {
        return std::clamp(toInteger(text), lowest, highest);
    }
    template <class Value>
    static void take(Value &value, const QString &text) {
        value = static_cast<Value>(Stored::read(text));
    }
};

/// One of some words in the store, its number from 0 in a settings string.
template <const auto &words>
struct Choice : Number<0, static_cast<int>(std::size(words)) - 1> {
    using Stored = forms::OneOf<words>;
};

/// "True" or "False".
struct Flag {
    using Stored = forms::Word;

    [[nodiscard]] static QString written(bool value) { return flagWord(value); }
    [[nodiscard]] static bool fromAction(const QString &text) { return toFlag(text); }
    /// Neither word leaves the control alone.
    static void take(bool &value, const QString &text) {
        if (text == flagWord(!value))
            value = !value;
    }
};

/// A flag whose every other stored text counts as "False".
struct ComparedFlag : Flag {
    using Stored = forms::ComparedWord;
};

/// A flag that only "0" clears for an Action, so that the word "False" doesn't: the rule is the reverse of
/// the other flags, and what users have stored relies on it.
struct FlagUnlessZero : ComparedFlag {
    [[nodiscard]] static bool fromAction(const QString &text) { return text != flagDigit(false); }
};

/// The state of a check box, "0" or "1".
struct Check : Flag {
    using Stored = forms::Check;

    [[nodiscard]] static QString written(bool value) { return flagDigit(value); }
    static void take(bool &value, const QString &text) {
        value = text == flagWord(true) || ValueOf(text) != 0;
    }
};

/// A check box that only "1" sets for an Action; anything else, nothing included, clears it.
struct CheckIfOne : Check {
    [[nodiscard]] static bool fromAction(const QString &text) { return text == flagDigit(true); }
};

struct Text {
    using Stored = forms::Text;

    /// A text that a settings string can't hold is left out: the dialogs refuse one that the tool would use.
    [[nodiscard]] static QString written(const QString &value) {
        return CParams::canHold(value) ? value : QString();
    }
    [[nodiscard]] static QString fromAction(const QString &text) { return text; }
    static void take(QString &value, const QString &text) { value = text; }
};

} // namespace toolForms

/// One value of a settings struct. `Form` is how it is written.
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

    /// The key in the store. Its default is the member of `defaults`, which must outlive it.
    [[nodiscard]] Setting<typename Form::Stored> key(const Settings &defaults) const {
        using Default = typename Form::Stored::Default;
        return {{Settings::section}, storeKey, static_cast<Default>(defaults.*member)};
    }
};

/// A list of texts that only the store has, in a section of its own.
template <class Settings>
struct ListField {
    QStringList Settings::*member;
    SettingList list;

    constexpr ListField(QStringList Settings::*texts, const char16_t *section)
        : member(texts), list{{section}} {}
};

} // namespace tolvo
