// SPDX-License-Identifier: MIT
// Every tool of the text engine as a function of one text, for what is asked of all of them alike: poor
// guests, figures, fuzzing.
#pragma once

#include "text/cTextMethods.h"

#include <array>

namespace tolvo::test {

struct Operation {
    const char *name;
    QString (*run)(const cTextMethods &engine, QStringView text);
};

/// Where the second half starts, at a blank if it holds one.
inline qsizetype secondHalf(QStringView text) {
    return qMax(text.indexOf(u' ', text.size() / 2), text.size() / 2);
}

#define TOLVO_OPERATION(name, call)                                                                          \
    Operation {                                                                                              \
        name, [](const cTextMethods &engine, QStringView text) -> QString { return engine.call; }            \
    }

inline const std::array operations = {
    TOLVO_OPERATION("ReverseCase", ReverseCase(text)),
    TOLVO_OPERATION("SentenceCase", SentenceCase(text)),
    TOLVO_OPERATION("Capitalise", Capitalise(text, false)),
    TOLVO_OPERATION("InitialCaps", InitialCaps(text, 1, text.size())),
    TOLVO_OPERATION("TitleCase", TitleCase(text, 0, text.size())),
    TOLVO_OPERATION("TitleCase, second half", TitleCase(text, secondHalf(text), text.size())),
    TOLVO_OPERATION("TrimTrail", TrimTrail(text)),
    TOLVO_OPERATION("TrimWhiteSpace", TrimWhiteSpace(text)),
    TOLVO_OPERATION("SingleSpace", SingleSpace(text)),
    TOLVO_OPERATION("RegularEOL", RegularEOL(text)),
    TOLVO_OPERATION("removeExtraLines", removeExtraLines(text, false, false)),
    TOLVO_OPERATION("removeExtraLines, all", removeExtraLines(text, true, true)),
    TOLVO_OPERATION("Paragraph", Paragraph(text)),
    TOLVO_OPERATION("Indent", Indent(text, u"    ")),
    TOLVO_OPERATION("Unindent", Unindent(text, u" ")),
    TOLVO_OPERATION("Tab2space", Tab2space(text, -3, 8)),
    TOLVO_OPERATION("Spaces2tab", Spaces2tab(text)),
    TOLVO_OPERATION("Sort", Sort(text)),
    TOLVO_OPERATION("Numsort", Numsort(text)),
    TOLVO_OPERATION("SortReverse", SortReverse(text)),
    TOLVO_OPERATION("KeywordSort", KeywordSort(text)),
    TOLVO_OPERATION("WordWrap", WordWrap(text, 40, true, false, false)),
    TOLVO_OPERATION("WordWrap, justified", WordWrap(text, 40, false, false, true)),
    TOLVO_OPERATION("number", number(text, 1, 0, 0, true, 1)),
    TOLVO_OPERATION("LineNumber", LineNumber(text, 1, 1, 1, true, true, false)),
    TOLVO_OPERATION("removeNumbers", removeNumbers(text)),
    TOLVO_OPERATION("RemoveLineNumbers", RemoveLineNumbers(text)),
    TOLVO_OPERATION("removeBullets", removeBullets(text)),
    TOLVO_OPERATION("PlainChars", PlainChars(text)),
    TOLVO_OPERATION("CurlyQuotes", CurlyQuotes(text)),
    TOLVO_OPERATION("URLdecode", URLdecode(text)),
    TOLVO_OPERATION("HTMLdecode", HTMLdecode(text)),
    TOLVO_OPERATION("Stripmail", Stripmail(text)),
    TOLVO_OPERATION("checkPunctuation", checkPunctuation(text, false)),
    TOLVO_OPERATION("statistics", statistics(text, text).rows.last().fullText),
};

#undef TOLVO_OPERATION

} // namespace tolvo::test
