// SPDX-License-Identifier: MIT
// What typography needs to know of a language.
#pragma once

#include "text/writing_settings.h"

#include <QStringView>

namespace tolvo {

struct TypographyRules {
    struct Marks {
        QStringView open;
        QStringView close;
    };
    Marks outer;
    Marks inner;
    char16_t dash;            ///< for thoughts put in
    bool dashBetweenBlanks;   ///< or close to the words
    QStringView elisions;     ///< words that begin with an apostrophe, in small letters: " tis n "
    QStringView beforeNumber; ///< abbreviations that a number follows: " p. No. "
    QStringView beforeName;   ///< abbreviations that a name follows: " Dr. "
    QStringView loneWords;    ///< letters that don't stand at a line's end as a word
    char16_t groupBlank;      ///< between the thousands of a number, 0 for a language that puts a comma there
    bool blankBeforePercent;
    bool blankBeforeStops; ///< before ; : ! and ?
};

[[nodiscard]] const TypographyRules &typographyRules(TypographySettings::Language language);

} // namespace tolvo
