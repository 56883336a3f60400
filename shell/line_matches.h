// SPDX-License-Identifier: MIT
// Small patterns within a line, found without an engine for regular expressions: every run looks at its fresh
// text, and the engine would cost it more memory than all the text.
#pragma once

#include <QList>
#include <QStringView>

namespace tolvo {

/// Columns count from 0, in UTF-16 code units.
struct LineMatch {
    qsizetype column = 0;
    qsizetype length = 0;

    bool operator==(const LineMatch &) const = default;
};

/// At its end a line has no character; at(line, line.size()) == QChar(), as before its start.
[[nodiscard]] QChar at(QStringView line, qsizetype column);
[[nodiscard]] bool isBlankOrTab(QChar c);

/// How many characters from `column` on are of the kind; `most` at most.
///   countFrom(u"a12b", 1, isAsciiDigit) == 2
[[nodiscard]] qsizetype countFrom(QStringView line, qsizetype column, bool (*isKind)(QChar),
                                  qsizetype most = -1);
[[nodiscard]] bool isAsciiDigit(QChar c);
[[nodiscard]] bool isHexDigit(QChar c);
[[nodiscard]] bool isAsciiLetter(QChar c);

/// The columns of all characters of a line that `wanted` holds.
[[nodiscard]] QList<LineMatch> anyOf(QStringView line, QStringView wanted);

/// The marks of replies before a line: u">> > one" gives the first five characters.
[[nodiscard]] QList<LineMatch> quoteMarks(QStringView line);

/// A number of at most `mostDigits` digits after blanks and tabs, and the sign of `signs` that follows it, if
/// signs are given; a blank or a tab must come next, or the end where no sign is asked for.
///   leadingNumber(u" 12. a", 3, u".)") gives column 1, length 3
[[nodiscard]] QList<LineMatch> leadingNumber(QStringView line, qsizetype mostDigits, QStringView signs);

/// A sign of `signs` after blanks and tabs, with a blank or a tab next.
[[nodiscard]] QList<LineMatch> leadingSign(QStringView line, QStringView signs);

/// Character references: "&amp;", "&#8364;", "&#x20AC;".
[[nodiscard]] QList<LineMatch> characterReferences(QStringView line);

/// Whether a tag of a web page ends or closes here: "</p", "/>".
[[nodiscard]] bool hasClosingTag(QStringView line);

/// "%20".
[[nodiscard]] QList<LineMatch> percentCodes(QStringView line);

/// Runs of at least two blanks (U+0020 only) between two characters that are neither blanks nor tabs.
[[nodiscard]] QList<LineMatch> innerBlanks(QStringView line);

/// Blanks, tabs and no-break blanks after the last other character.
[[nodiscard]] QList<LineMatch> blanksAtEnd(QStringView line);

} // namespace tolvo
