// SPDX-License-Identifier: MIT
// The settings of the tools for typography, capitals by language and paragraphs; see text/tool_settings.h.
#pragma once

#include "text/settings_fields.h"

#include <array>
#include <tuple>

namespace tolvo {

struct TypographySettings {
    /// By the numbers in settings strings and of the dialog's list.
    enum class Language { British, American, German, French, Polish, Spanish };
    Language language = Language::British;
    bool blanks = true; ///< no-break blanks where a line must not end

    static constexpr std::array<QStringView, 6> words = {u"British", u"American", u"German",
                                                         u"French",  u"Polish",   u"Spanish"};
    static constexpr QStringView section = u"Typography";
    static constexpr std::tuple fields{
        Field{&TypographySettings::language, u"Language", toolForms::Choice<words>{}},
        Field{&TypographySettings::blanks, u"Blanks", toolForms::Check{}}};
    bool operator==(const TypographySettings &) const = default;
};

struct LanguageCaseSettings {
    enum class Language { Any, Azerbaijani, Dutch, Greek, Lithuanian, Turkish, Irish };
    enum class Kind { Upper, Lower, Title };
    Language language = Language::Any;
    Kind kind = Kind::Upper;

    static constexpr std::array<QStringView, 7> languages = {
        u"Any", u"Azerbaijani", u"Dutch", u"Greek", u"Lithuanian", u"Turkish", u"Irish"};
    static constexpr std::array<QStringView, 3> kinds = {u"Upper", u"Lower", u"Title"};
    static constexpr QStringView section = u"LanguageCase";
    static constexpr std::tuple fields{
        Field{&LanguageCaseSettings::language, u"Language", toolForms::Choice<languages>{}},
        Field{&LanguageCaseSettings::kind, u"Kind", toolForms::Choice<kinds>{}}};
    bool operator==(const LanguageCaseSettings &) const = default;
};

struct ParagraphWrapSettings {
    static constexpr int narrowest = 8;
    static constexpr int widest = 1000;
    int width = 72;    ///< in columns, two for a wide character
    bool fill = false; ///< joins the lines of a paragraph before

    static constexpr QStringView section = u"ParagraphWrap";
    static constexpr std::tuple fields{
        Field{&ParagraphWrapSettings::width, u"Width", toolForms::Number<narrowest, widest>{}},
        Field{&ParagraphWrapSettings::fill, u"Fill", toolForms::Check{}}};
    bool operator==(const ParagraphWrapSettings &) const = default;
};

} // namespace tolvo
