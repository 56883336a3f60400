// SPDX-License-Identifier: MIT
// The settings of the tools that look for a pattern.
#pragma once

#include "text/line_settings.h"

#include <QString>
#include <tuple>

namespace tolvo {

/// By the numbers of the modes of search (search/search_request.h).
enum class PatternMode { Simple = 1, Wildcard, RegularExpression };

/// The fields of a pattern, in the order of the settings string.
template <class Settings>
constexpr auto patternFields(QString Settings::*pattern, PatternMode Settings::*mode,
                             bool Settings::*matchCase, bool Settings::*wholeWords,
                             bool Settings::*specialChars) {
    using Mode = toolForms::Number<static_cast<int>(PatternMode::Simple),
                                   static_cast<int>(PatternMode::RegularExpression)>;
    return std::tuple{Field{pattern, u"Pattern", toolForms::HeldText{}}, Field{mode, u"Mode", Mode{}},
                      Field{matchCase, u"MatchCase", toolForms::Check{}},
                      Field{wholeWords, u"WholeWords", toolForms::Check{}},
                      Field{specialChars, u"SpecialChars", toolForms::Check{}}};
}

struct PatternLinesSettings {
    using Mode = PatternMode;
    bool drop = false; ///< the lines with a match go; otherwise they are what stays
    QString pattern;
    Mode mode = Mode::Simple;
    bool matchCase = false;
    bool wholeWords = false;   ///< not for a regular expression
    bool specialChars = false; ///< "\t" and its like in the pattern; a regular expression always has them

    static constexpr QStringView section = u"PatternLines";
    static constexpr std::tuple fields =
        std::tuple_cat(std::tuple{Field{&PatternLinesSettings::drop, u"Drop", toolForms::Check{}}},
                       patternFields(&PatternLinesSettings::pattern, &PatternLinesSettings::mode,
                                     &PatternLinesSettings::matchCase, &PatternLinesSettings::wholeWords,
                                     &PatternLinesSettings::specialChars));
    bool operator==(const PatternLinesSettings &) const = default;
};

/// The pattern as above.
struct PatternSortSettings {
    QString pattern;
    PatternMode mode = PatternMode::Simple;
    bool matchCase = false;
    bool wholeWords = false;
    bool specialChars = false;
    SortLinesSettings::Order order = SortLinesSettings::Order::Natural; ///< of what the pattern matches
    bool descending = false;

    static constexpr QStringView section = u"PatternSort";
    static constexpr std::tuple fields = std::tuple_cat(
        patternFields(&PatternSortSettings::pattern, &PatternSortSettings::mode,
                      &PatternSortSettings::matchCase, &PatternSortSettings::wholeWords,
                      &PatternSortSettings::specialChars),
        std::tuple{Field{&PatternSortSettings::order, u"Order",
                         toolForms::Number<0, static_cast<int>(SortLinesSettings::Order::Characters)>{}},
                   Field{&PatternSortSettings::descending, u"Descending", toolForms::Check{}}});
    bool operator==(const PatternSortSettings &) const = default;
};

/// The same.
struct MatchCountSettings {
    QString pattern;
    PatternMode mode = PatternMode::Simple;
    bool matchCase = false; ///< otherwise matches that differ in case alone are counted as one
    bool wholeWords = false;
    bool specialChars = false;

    static constexpr QStringView section = u"MatchCount";
    static constexpr std::tuple fields =
        patternFields(&MatchCountSettings::pattern, &MatchCountSettings::mode, &MatchCountSettings::matchCase,
                      &MatchCountSettings::wholeWords, &MatchCountSettings::specialChars);
    bool operator==(const MatchCountSettings &) const = default;
};

} // namespace tolvo
