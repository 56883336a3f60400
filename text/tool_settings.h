// SPDX-License-Identifier: MIT
// The settings of the tools that have any. Each struct lists its fields beside its members, in the order of
// the settings string; loading, saving, settings strings and what an Action stores all read that list. A
// struct is its dialog's state: loaded at first use, kept for the run, saved at its end.
#pragma once

#include "base/CParams.h"
#include "text/line_settings.h"
#include "text/numbering.h"
#include "text/pattern_settings.h"
#include "text/settings_fields.h"
#include "text/writing_settings.h"

#include <QString>
#include <QStringList>
#include <array>
#include <tuple>
#include <utility>
#include <variant>

namespace tolvo {

class SettingsStore;

struct IndentSettings {
    /// By the numbers in settings strings and of the dialog's options.
    enum class Choice { Tab, Spaces, Text };
    static constexpr int mostRecentTexts = 20;
    Choice choice = Choice::Tab;
    int spaces = 4;
    QString text;
    QStringList recentTexts; ///< newest first

    static constexpr std::array<QStringView, 3> words = {u"Tab", u"Spaces", u"Text"};
    static constexpr QStringView section = u"Indent";
    static constexpr std::tuple fields{
        Field{&IndentSettings::spaces, u"Spaces", toolForms::Number<0, mostSpaces>{}},
        Field{&IndentSettings::text, u"Text", toolForms::Text{}},
        Field{&IndentSettings::choice, u"Option", u"RadioButton", toolForms::Choice<words>{}},
        ListField{&IndentSettings::recentTexts, u"Indent\\TextMRU"}};

    /// What the tool puts before a line: a TAB, blanks or the text.
    [[nodiscard]] QString prefix() const;
    bool operator==(const IndentSettings &) const = default;
};

struct WordWrapSettings {
    static constexpr int narrowest = 12;
    static constexpr int widest = 255;
    int width = 50; ///< its limits are the dialog's alone: an Action may wrap at any
    bool justify = false;
    bool hanging = false;
    bool tab = true;

    static constexpr QStringView section = u"Wordwrap";
    static constexpr std::tuple fields{Field{&WordWrapSettings::width, u"Width", toolForms::Number<>{}},
                                       Field{&WordWrapSettings::justify, u"Justify", toolForms::Check{}},
                                       Field{&WordWrapSettings::hanging, u"Hanging", toolForms::Check{}},
                                       Field{&WordWrapSettings::tab, u"Tab", toolForms::Flag{}}};
    bool operator==(const WordWrapSettings &) const = default;
};

struct RemoveLinesSettings {
    bool single = false;
    bool multiple = true;

    static constexpr QStringView section = u"RemLines";
    static constexpr std::tuple fields{
        Field{&RemoveLinesSettings::single, u"Single", toolForms::CheckIfOne{}},
        Field{&RemoveLinesSettings::multiple, u"Multiple", toolForms::CheckIfOne{}}};
    bool operator==(const RemoveLinesSettings &) const = default;
};

struct BulletSettings {
    static constexpr int mostTypedSpaces = 12; ///< what the dialog takes
    QString bullet = QStringLiteral(u"\u2022");
    bool tab = true;
    int spaces = 2;

    static constexpr QStringView section = u"BulletList";
    static constexpr std::tuple fields{
        Field{&BulletSettings::bullet, u"Character", u"Bullet", toolForms::Text{}},
        Field{&BulletSettings::tab, u"Tab", toolForms::Flag{}},
        Field{&BulletSettings::spaces, u"PadChars", u"Spaces", toolForms::Number<0, mostSpaces>{}}};

    /// The bullet followed by a TAB or blanks.
    [[nodiscard]] QString prefix() const;
    bool operator==(const BulletSettings &) const = default;
};

struct NumberListSettings {
    static constexpr int highestTypedStart = 999; ///< what the dialog takes
    static constexpr int mostTypedSpaces = 12;    ///< the same
    ListStyle style = ListStyle::Decimal;
    int start = 1;
    bool renumber = false;
    FollowChar followChar = FollowChar::None;
    bool tab = true;
    int spaces = 4;

    static constexpr QStringView section = u"NumList";
    static constexpr std::tuple fields{
        Field{&NumberListSettings::style, u"Style", toolForms::Number<0, lastListStyle>{}},
        Field{&NumberListSettings::start, u"StartNumber", u"Start", toolForms::Number<>{}},
        Field{&NumberListSettings::renumber, u"Renumber", toolForms::Check{}},
        Field{&NumberListSettings::followChar, u"FollowChar", toolForms::Number<0, lastFollowChar>{}},
        Field{&NumberListSettings::tab, u"Tab", toolForms::Flag{}},
        Field{&NumberListSettings::spaces, u"PadChars", u"Spaces", toolForms::Number<1, mostSpaces>{}}};
    bool operator==(const NumberListSettings &) const = default;
};

struct LineNumberSettings {
    int start = 1;
    int step = 1;
    int every = 1;
    bool renumber = true;
    bool ignoreBlanks = true;
    bool pad = true;
    bool rangeRight = false;

    static constexpr QStringView section = u"NumLines";
    static constexpr std::tuple fields{
        Field{&LineNumberSettings::start, u"Start", toolForms::Number<>{}},
        Field{&LineNumberSettings::step, u"Step", toolForms::Number<1>{}},
        Field{&LineNumberSettings::every, u"Every", toolForms::Number<1>{}},
        Field{&LineNumberSettings::ignoreBlanks, u"IgnoreBlanks", toolForms::FlagUnlessZero{}},
        Field{&LineNumberSettings::renumber, u"Renumber", toolForms::ComparedFlag{}},
        Field{&LineNumberSettings::pad, u"Pad", toolForms::ComparedFlag{}},
        Field{&LineNumberSettings::rangeRight, u"RangeRight", toolForms::Flag{}}};
    bool operator==(const LineNumberSettings &) const = default;
};

/// The settings of any tool. What is derived from the list of structs: the dialogs (text/ui/tool_dialogs.h),
/// the memory of a run, and all functions below.
using ToolSettings = std::variant<IndentSettings, WordWrapSettings, RemoveLinesSettings, BulletSettings,
                                  NumberListSettings, LineNumberSettings,
                                  // text/line_settings.h
                                  SortLinesSettings, DuplicateSettings, AroundLinesSettings,
                                  SeparatorSettings, EveryLineSettings, ColumnSettings,
                                  // text/pattern_settings.h
                                  PatternLinesSettings, PatternSortSettings, MatchCountSettings,
                                  // text/writing_settings.h
                                  TypographySettings, LanguageCaseSettings, ParagraphWrapSettings>;

/// Calls visit(Settings()) for each of the structs.
template <class Visit>
void forEachToolSettings(Visit visit) {
    [&visit]<std::size_t... index>(std::index_sequence<index...>) {
        (visit(std::variant_alternative_t<index, ToolSettings>()), ...);
    }
    (std::make_index_sequence<std::variant_size_v<ToolSettings>>());
}

/// The values last used, from the store; `settings` says of which struct, its values don't count. A stored
/// number that can't be read counts as 0, and as the nearest value that is allowed.
[[nodiscard]] ToolSettings loadSettings(ToolSettings settings, const SettingsStore &store);

/// Remembers every value as the one last used.
void saveSettings(SettingsStore &store, const ToolSettings &settings);

/// The settings string, keys and order as every PowerButton stores them: "Single=1, Multiple=0". A text that
/// it can't hold is left out.
[[nodiscard]] QString settingsString(const ToolSettings &settings);

/// For a dialog: takes over the keys that are there and leaves the others alone; a text that is not a number
/// counts as 0.
void applySettings(ToolSettings &settings, const CParams &params);

/// For the execution of an Action: every key is converted strictly, a missing or wrong one is a Failure.
/// `settings` says which struct, its values don't count.
[[nodiscard]] ToolSettings settingsFromAction(ToolSettings settings, const CParams &params);

} // namespace tolvo
