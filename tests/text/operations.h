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

#define OF_TEXT(name, call)                                                                                  \
    Operation {                                                                                              \
        name, [](const cTextMethods &engine, QStringView text) -> QString { return engine.call; }            \
    }

inline const std::array operations = {
    OF_TEXT("ReverseCase", ReverseCase(text)),
    OF_TEXT("SentenceCase", SentenceCase(text)),
    OF_TEXT("Capitalise", Capitalise(text, false)),
    OF_TEXT("InitialCaps", InitialCaps(text, 1, text.size())),
    OF_TEXT("TitleCase", TitleCase(text, 0, text.size())),
    OF_TEXT("TitleCase, second half", TitleCase(text, secondHalf(text), text.size())),
    OF_TEXT("TrimTrail", TrimTrail(text)),
    OF_TEXT("TrimWhiteSpace", TrimWhiteSpace(text)),
    OF_TEXT("SingleSpace", SingleSpace(text)),
    OF_TEXT("RegularEOL", RegularEOL(text)),
    OF_TEXT("removeExtraLines", removeExtraLines(text, false, false)),
    OF_TEXT("removeExtraLines, all", removeExtraLines(text, true, true)),
    OF_TEXT("Paragraph", Paragraph(text)),
    OF_TEXT("Indent", Indent(text, u"    ")),
    OF_TEXT("Unindent", Unindent(text, u" ")),
    OF_TEXT("Tab2space", Tab2space(text, -3, 8)),
    OF_TEXT("Spaces2tab", Spaces2tab(text)),
    OF_TEXT("Sort", Sort(text)),
    OF_TEXT("Numsort", Numsort(text)),
    OF_TEXT("SortReverse", SortReverse(text)),
    OF_TEXT("KeywordSort", KeywordSort(text)),
    OF_TEXT("WordWrap", WordWrap(text, 40, true, false, false)),
    OF_TEXT("WordWrap, justified", WordWrap(text, 40, false, false, true)),
    OF_TEXT("number", number(text, 1, 0, 0, true, 1)),
    OF_TEXT("LineNumber", LineNumber(text, 1, 1, 1, true, true, false)),
    OF_TEXT("removeNumbers", removeNumbers(text)),
    OF_TEXT("RemoveLineNumbers", RemoveLineNumbers(text)),
    OF_TEXT("removeBullets", removeBullets(text)),
    OF_TEXT("PlainChars", PlainChars(text)),
    OF_TEXT("CurlyQuotes", CurlyQuotes(text)),
    OF_TEXT("URLdecode", URLdecode(text)),
    OF_TEXT("HTMLdecode", HTMLdecode(text)),
    OF_TEXT("Stripmail", Stripmail(text)),
    OF_TEXT("checkPunctuation", checkPunctuation(text, false)),
    OF_TEXT("statistics", statistics(text, text).rows.last().fullText)};

#undef OF_TEXT

/// What holds for any text.
struct Law {
    const char *name;
    bool (*holds)(const cTextMethods &engine, const QString &text);
};

/// Doing it again changes nothing.
template <QString (cTextMethods::*tool)(QStringView) const>
bool isIdempotent(const cTextMethods &engine, const QString &text) {
    const QString once = (engine.*tool)(text);
    return (engine.*tool)(once) == once;
}

inline const Law laws[] = {
    {"TrimWhiteSpace twice", isIdempotent<&cTextMethods::TrimWhiteSpace>},
    {"RegularEOL twice", isIdempotent<&cTextMethods::RegularEOL>},
    {"SingleSpace twice", isIdempotent<&cTextMethods::SingleSpace>},
    {"PlainChars twice", isIdempotent<&cTextMethods::PlainChars>},
    {"nothing left to trim",
     [](const cTextMethods &engine, const QString &text) {
         const QString trimmed = engine.TrimWhiteSpace(text);
         return engine.TrimTrail(trimmed) == trimmed;
     }},
    {"Indent and back", // blank lines lose their blanks when the others are indented
     [](const cTextMethods &engine, const QString &text) {
         const QString trimmed = engine.TrimWhiteSpace(text);
         return engine.Unindent(engine.Indent(trimmed, u"\t"), u"\t") == trimmed;
     }},
    {"removeExtraLines, last line end",
     [](const cTextMethods &engine, const QString &text) {
         return !engine.removeExtraLines(text, false, false).endsWith(u"\r\n");
     }},
    {"lengths that stay",
     [](const cTextMethods &engine, const QString &text) {
         const qsizetype start = text.size() / 3;
         const qsizetype length = text.size() / 2;
         return engine.SentenceCase(text).size() == text.size() &&
                engine.Capitalise(text, true).size() == text.size() &&
                engine.InitialCaps(text, start + 1, length).size() == length &&
                engine.TitleCase(text, start, length).size() == length;
     }},
};

} // namespace tolvo::test
