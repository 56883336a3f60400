// SPDX-License-Identifier: MIT
#include "search/pattern_elements.h"

#include <span>

namespace tolvo {

namespace {

constexpr PatternElement wildcards[] = {
    {u"?", u"any character"},
    {u"*", u"0 or more characters"},
    {u"+", u"1 or more characters", 0, true},
    {u"&", u"a letter"},
    {u"!", u"a letter, digit or other part of a word"},
    {u"%", u"a digit"},
    {u"%*", u"0 or more digits"},
    {u"%+", u"1 or more digits"},
    {u"~", u"a space, tab or line end"},
    {u"~+", u"1 or more of them"},
    {u"#", u"a number"},
    {u"@", u"a word", 0, true},
    {u"[]", u"one of the characters within, as in [abc] or [a-f]", 1},
    {u"[^]", u"any character but these", 1, true},
    {u"\\?", u"a question mark; the same for ! . * + # % ~ @ ^ [ ]", 0, true},
};

constexpr PatternElement classes[] = {
    {u".", u"any character but a line end"},
    {u"\\d", u"a digit"},
    {u"\\w", u"a letter, digit or underscore"},
    {u"\\s", u"a space, tab or line end"},
    {u"[]", u"one of the characters within, as in [abc] or [a-f]", 1},
    {u"[^]", u"any character but these", 1, true},
    {u"*", u"0 or more of what stands before it"},
    {u"+", u"1 or more of it"},
    {u"?", u"it, or nothing"},
    {u"*?", u"0 or more of it, as few as will do"},
    {u"{2,4}", u"2 to 4 of it", 0, true},
    {u"^", u"the start of a line"},
    {u"$", u"the end of a line"},
    {u"\\b", u"the start or end of a word", 0, true},
    {u"()", u"a group, which a replacement calls $1", 1},
    {u"|", u"what stands before it, or what stands after it"},
    {u"(?=)", u"followed by what is within", 1},
    {u"(?!)", u"not followed by it", 1, true},
    {u"\\.", u"a stop; the same for \\ ^ $ * + ? ( ) [ ] { } |", 0, true},
};

constexpr PatternElement escapes[] = {
    {u"\\n", u"a line end"},
    {u"\\t", u"a tab"},
    {u"\\x41", u"the character of a number with two hexadecimal digits"},
    {u"\\u20AC", u"the same with four digits"},
};

constexpr PatternElement backslash[] = {{u"\\\\", u"a backslash"}};

constexpr PatternElement wholeMatch[] = {{u"$&", u"the whole match", 0, true}};

constexpr PatternElement wildcardParts[] = {
    {u"$&", u"the whole match"},
    {u"$1", u"what the first wildcard has found"},
    {u"$2", u"what the second one has found; and so on, up to $9"},
    {u"$$", u"a dollar sign", 0, true},
};

constexpr PatternElement groups[] = {
    {u"$&", u"the whole match"},
    {u"$1", u"what the first group ( ) has found"},
    {u"$2", u"what the second one has found; and so on, up to $9"},
    {u"$$", u"a dollar sign", 0, true},
};

void add(QList<PatternElement> &elements, std::span<const PatternElement> more) {
    elements.append(QList<PatternElement>(more.begin(), more.end()));
}

QList<PatternElement> ofPattern(SearchMode mode, bool specialChars) {
    QList<PatternElement> elements;
    if (mode == SearchMode::Wildcard)
        add(elements, wildcards);
    if (mode == SearchMode::RegularExpression)
        add(elements, classes);
    if (specialChars || mode == SearchMode::RegularExpression)
        add(elements, escapes);
    // The other two modes have an escape of their own for it, or need none.
    if (specialChars && mode == SearchMode::Simple)
        add(elements, backslash);
    return elements;
}

} // namespace

QList<PatternElement> patternElements(SearchText text, SearchMode mode, bool specialChars) {
    if (text == SearchText::Find)
        return ofPattern(mode, specialChars);
    QList<PatternElement> elements;
    if (text != SearchText::Replace && text != SearchText::Form)
        return elements;
    if (mode == SearchMode::Wildcard)
        add(elements, wildcardParts);
    else if (mode == SearchMode::RegularExpression)
        add(elements, groups);
    else if (text == SearchText::Form)
        add(elements, wholeMatch);
    if (specialChars || mode != SearchMode::Simple) {
        add(elements, escapes);
        add(elements, backslash);
    }
    return elements;
}

} // namespace tolvo
