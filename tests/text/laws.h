// SPDX-License-Identifier: MIT
// What the text engine promises about any text, for poor guests and for fuzzing.
#pragma once

#include "text/cTextMethods.h"
#include "text/line_list.h"
#include "text/table_rows.h"

namespace tolvo::test {

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
    {"rows of a table are the text",
     [](const cTextMethods &, const QString &text) {
         const LineList rows(tableRows(text).rows);
         return rows.joined(rows.lines) == text;
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
