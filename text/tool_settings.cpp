// SPDX-License-Identifier: MIT
#include "text/tool_settings.h"

#include "base/conversions.h"
#include "base/numbers.h"
#include "preferences/settings_table.h"
#include "text/numbering.h"

#include <algorithm>
#include <limits>
#include <tuple>

namespace tolvo {

namespace {

// The written forms. Each tells how a value stands in the store and in a settings string, and how it is read:
// strictly for an Action, leniently from the store and into a dialog's controls. A stored value that can't be
// read must not keep the user from the dialog that would put it right.

struct Number {
    int lowest = std::numeric_limits<int>::min();
    int highest = std::numeric_limits<int>::max();

    [[nodiscard]] static QString stored(int value) { return QString::number(value); }
    [[nodiscard]] static QString written(int value) { return QString::number(value); }
    [[nodiscard]] int fromStore(const QString &text) const {
        int value = 0;
        take(value, text);
        return value;
    }
    [[nodiscard]] int fromAction(const QString &text) const {
        return std::clamp(toInteger(text), lowest, highest);
    }
    void take(int &value, const QString &text) const {
        value = static_cast<int>(
            std::clamp(roundHalfToEven(ValueOf(text)), double{1} * lowest, double{1} * highest));
    }
};

/// One of some words in the store, its number in a settings string.
struct Choice : Number {
    const char16_t *const *words;

    constexpr Choice(const char16_t *const *first, int count) : Number{0, count - 1}, words(first) {}
    [[nodiscard]] QString stored(int value) const { return QString::fromUtf16(words[value]); }
    /// A word that is none of them counts as the last.
    [[nodiscard]] int fromStore(const QString &text) const {
        for (int i = 0; i < highest; ++i) {
            if (text == QStringView(words[i]))
                return i;
        }
        return highest;
    }
};

/// "True" or "False".
struct Flag {
    [[nodiscard]] static QString stored(bool value) { return flagWord(value); }
    [[nodiscard]] static QString written(bool value) { return flagWord(value); }
    /// Neither word counts as a number.
    [[nodiscard]] static bool fromStore(const QString &text) {
        const QString word = text.trimmed();
        return word.compare(flagWord(true), Qt::CaseInsensitive) == 0 || ValueOf(word) != 0;
    }
    [[nodiscard]] static bool fromAction(const QString &text) { return toFlag(text); }
    /// Neither word leaves the control alone.
    static void take(bool &value, const QString &text) {
        if (text == flagWord(!value))
            value = !value;
    }
};

/// A flag whose every other stored text counts as "False".
struct ComparedFlag : Flag {
    [[nodiscard]] static bool fromStore(const QString &text) { return text == flagWord(true); }
};

/// A flag that only "0" clears for an Action, so that the word "False" doesn't: the rule is the reverse of
/// the other flags, and what users have stored relies on it.
struct FlagUnlessZero : ComparedFlag {
    [[nodiscard]] static bool fromAction(const QString &text) { return text != flagDigit(false); }
};

/// The state of a check box, "0" or "1".
struct Check : Flag {
    [[nodiscard]] static QString stored(bool value) { return flagDigit(value); }
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
    [[nodiscard]] static QString stored(const QString &value) { return value; }
    [[nodiscard]] static QString written(const QString &value) {
        return CParams::canHold(value) ? value : QString();
    }
    [[nodiscard]] static QString fromStore(const QString &text) { return text; }
    [[nodiscard]] static QString fromAction(const QString &text) { return text; }
    static void take(QString &value, const QString &text) { value = text; }
};

template <class Settings, class Value, class Form>
struct Field {
    Value Settings::*member;
    QStringView storeKey;
    QStringView stringKey;
    Form form;
};
template <class Settings, class Value, class Form>
Field(Value Settings::*, const char16_t *, const char16_t *, Form) -> Field<Settings, Value, Form>;

template <class Settings>
struct FieldsOf;

constexpr Number anyNumber;
constexpr Number positive{1, std::numeric_limits<int>::max()};
constexpr Number blanks{0, mostSpaces};
constexpr Number padding{1, mostSpaces};
constexpr const char16_t *indentChoices[] = {u"Tab", u"Spaces", u"Text"};

// In the order of the settings string.

template <>
struct FieldsOf<IndentSettings> {
    using S = IndentSettings;
    static constexpr QStringView section = u"Indent";
    static constexpr std::tuple list{Field{&S::spaces, u"Spaces", u"Spaces", blanks},
                                     Field{&S::text, u"Text", u"Text", Text{}},
                                     Field{&S::choice, u"Option", u"RadioButton", Choice(indentChoices, 3)}};
};

template <>
struct FieldsOf<WordWrapSettings> {
    using S = WordWrapSettings;
    static constexpr QStringView section = u"Wordwrap";
    // The page width is tested by the dialog alone: an Action may wrap at any.
    static constexpr std::tuple list{
        Field{&S::width, u"Width", u"Width", anyNumber}, Field{&S::justify, u"Justify", u"Justify", Check{}},
        Field{&S::hanging, u"Hanging", u"Hanging", Check{}}, Field{&S::tab, u"Tab", u"Tab", Flag{}}};
};

template <>
struct FieldsOf<RemoveLinesSettings> {
    using S = RemoveLinesSettings;
    static constexpr QStringView section = u"RemLines";
    static constexpr std::tuple list{Field{&S::single, u"Single", u"Single", CheckIfOne{}},
                                     Field{&S::multiple, u"Multiple", u"Multiple", CheckIfOne{}}};
};

template <>
struct FieldsOf<BulletSettings> {
    using S = BulletSettings;
    static constexpr QStringView section = u"BulletList";
    static constexpr std::tuple list{Field{&S::bullet, u"Character", u"Bullet", Text{}},
                                     Field{&S::tab, u"Tab", u"Tab", Flag{}},
                                     Field{&S::spaces, u"PadChars", u"Spaces", blanks}};
};

template <>
struct FieldsOf<NumberListSettings> {
    using S = NumberListSettings;
    static constexpr QStringView section = u"NumList";
    static constexpr std::tuple list{
        Field{&S::style, u"Style", u"Style", Number{0, lastListStyle}},
        Field{&S::start, u"StartNumber", u"Start", anyNumber},
        Field{&S::renumber, u"Renumber", u"Renumber", Check{}},
        Field{&S::followChar, u"FollowChar", u"FollowChar", Number{0, lastFollowChar}},
        Field{&S::tab, u"Tab", u"Tab", Flag{}},
        Field{&S::spaces, u"PadChars", u"Spaces", padding}};
};

template <>
struct FieldsOf<LineNumberSettings> {
    using S = LineNumberSettings;
    static constexpr QStringView section = u"NumLines";
    static constexpr std::tuple list{
        Field{&S::start, u"Start", u"Start", anyNumber},
        Field{&S::step, u"Step", u"Step", positive},
        Field{&S::every, u"Every", u"Every", positive},
        Field{&S::ignoreBlanks, u"IgnoreBlanks", u"IgnoreBlanks", FlagUnlessZero{}},
        Field{&S::renumber, u"Renumber", u"Renumber", ComparedFlag{}},
        Field{&S::pad, u"Pad", u"Pad", ComparedFlag{}},
        Field{&S::rangeRight, u"RangeRight", u"RangeRight", Flag{}}};
};

constexpr QStringView recentTextsSection = u"Indent\\TextMRU";

template <class Settings, class Visitor>
void forEachField(Visitor visit) {
    std::apply([&visit](const auto &...field) { (visit(field), ...); }, FieldsOf<Settings>::list);
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

template <class Settings>
Settings loadSettings(const SettingsStore &store) {
    Settings settings;
    forEachField<Settings>([&](const auto &field) {
        settings.*field.member =
            field.form.fromStore(readSetting(store, FieldsOf<Settings>::section, field.storeKey));
    });
    if constexpr (std::is_same_v<Settings, IndentSettings>)
        settings.recentTexts = readList(store, recentTextsSection.toString());
    return settings;
}

template <class Settings>
void saveSettings(SettingsStore &store, const Settings &settings) {
    forEachField<Settings>([&](const auto &field) {
        writeSetting(store, FieldsOf<Settings>::section, field.storeKey,
                     field.form.stored(settings.*field.member));
    });
    if constexpr (std::is_same_v<Settings, IndentSettings>)
        writeList(store, recentTextsSection.toString(), settings.recentTexts);
}

template <class Settings>
QString settingsString(const Settings &settings) {
    QStringList pairs;
    forEachField<Settings>([&](const auto &field) {
        pairs.append(field.stringKey.toString() + u'=' + field.form.written(settings.*field.member));
    });
    return pairs.join(QStringLiteral(", "));
}

template <class Settings>
void applySettings(Settings &settings, const CParams &params) {
    forEachField<Settings>([&](const auto &field) {
        const QString key = field.stringKey.toString();
        if (params.contains(key))
            field.form.take(settings.*field.member, params.arg(key));
    });
}

template <class Settings>
Settings settingsFromAction(const CParams &params) {
    Settings settings;
    forEachField<Settings>([&](const auto &field) {
        settings.*field.member = field.form.fromAction(params.arg(field.stringKey.toString()));
    });
    return settings;
}

// A type can't stand in parentheses. NOLINTBEGIN(bugprone-macro-parentheses)
#define TOLVO_TOOL_SETTINGS(Settings)                                                                        \
    template Settings loadSettings<Settings>(const SettingsStore &);                                         \
    template void saveSettings<Settings>(SettingsStore &, const Settings &);                                 \
    template QString settingsString<Settings>(const Settings &);                                             \
    template void applySettings<Settings>(Settings &, const CParams &);                                      \
    template Settings settingsFromAction<Settings>(const CParams &);

TOLVO_TOOL_SETTINGS(IndentSettings)
TOLVO_TOOL_SETTINGS(WordWrapSettings)
TOLVO_TOOL_SETTINGS(RemoveLinesSettings)
TOLVO_TOOL_SETTINGS(BulletSettings)
TOLVO_TOOL_SETTINGS(NumberListSettings)
TOLVO_TOOL_SETTINGS(LineNumberSettings)
// NOLINTEND(bugprone-macro-parentheses)

} // namespace tolvo
