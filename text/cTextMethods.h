// SPDX-License-Identifier: MIT
// The text engine: every tool is one operation, string in, string out. Each topic has a file of its own
// beside this header (case.cpp, spacing.cpp, sorting.cpp...). Positions count from 1 in UTF-16 code units
// unless told otherwise.
#pragma once

#include "text/statistics.h"
#include "text/text_host.h"
#include "text/word_rules.h"

#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

/// The answer of the sorts for a text that they can't work on.
inline constexpr QStringView sortError = u"<ERROR>";

/// Stateless between calls, apart from the list of top level domains in use.
class cTextMethods {
  public:
    using KnownExtension = AddressRules::KnownExtension;

    /// `isKnownExtension` tells whether a file extension (without its stop) is one that the system or the
    /// user knows.
    cTextMethods(TextHost &host, KnownExtension isKnownExtension);

    /// sTLD: the list of top level domains in use, with a comma at both ends. Starts as the short one.
    void setTopLevelDomains(const QString &list);
    [[nodiscard]] const QString &topLevelDomains() const { return sTLD; }

    // Primitives (primitives.cpp)

    /// Number of occurrences, overlapping ones included, as decimal text.
    [[nodiscard]] QString Count(QStringView text, QStringView needle, Qt::CaseSensitivity compare) const;
    /// Row and column from 1 of a position from 0; a position beyond the end leaves both as they were.
    void getColRow(QStringView text, qsizetype position, int &row, int &column) const;
    [[nodiscard]] bool atStartOfWord(QStringView text, qsizetype position) const;
    /// `position` is the one just behind the word. A character that is the text's last is not looked at.
    [[nodiscard]] bool atEndOfWord(QStringView text, qsizetype position) const;
    /// True if comma, word, comma stands in the list, in any case. A list without a comma at its ends has two
    /// entries that are never found.
    [[nodiscard]] bool IsInList(QStringView word, QStringView list) const;
    /// The replacement with the capitals of the text that it replaces.
    [[nodiscard]] QString smartMatch(QStringView model, QStringView replacement) const;

    // Case (case.cpp)

    [[nodiscard]] QString ReverseCase(QStringView text) const;
    [[nodiscard]] QString SentenceCase(QStringView text) const;
    [[nodiscard]] QString Capitalise(QStringView text, bool colonEndsSentence) const;
    /// The changed range of `length` units from `start` (from 1); what is around it is only looked at.
    [[nodiscard]] QString InitialCaps(QStringView text, qsizetype start, qsizetype length) const;
    /// The new title for the selection (start from 0), or the selection unchanged.
    [[nodiscard]] QString TitleCase(QStringView text, qsizetype selStart, qsizetype selLength) const;

    // Spacing and lines (spacing.cpp, paragraphs.cpp, indents.cpp)

    [[nodiscard]] QString TrimTrail(QStringView text) const;
    [[nodiscard]] QString LTrimWhiteSpace(QStringView text) const;
    [[nodiscard]] QString TrimWhiteSpace(QStringView text) const;
    [[nodiscard]] QString TrimStopChars(QStringView text) const;
    [[nodiscard]] QString TrimQuotes(QStringView text) const;
    [[nodiscard]] QString SingleSpace(QStringView text) const;
    [[nodiscard]] QString RegularEOL(QStringView text) const;
    [[nodiscard]] QString removeExtraLines(QStringView text, bool single, bool multiple) const;
    [[nodiscard]] QString Paragraph(QStringView text) const;
    [[nodiscard]] QString Indent(QStringView text, QStringView indent) const;
    [[nodiscard]] QString Unindent(QStringView text, QStringView indent) const;
    /// `startColumn` is the column, from 0, at which the first line begins; all other lines begin at 0.
    [[nodiscard]] QString Tab2space(QStringView text, int startColumn, int tabWidth) const;
    [[nodiscard]] QString Spaces2tab(QStringView text) const;

    // Sorting (sorting.cpp). The first four answer sortError for a text that they can't work on, the others
    // nothing: a sorted text may read like sortError.

    [[nodiscard]] QString Sort(QStringView text) const;
    [[nodiscard]] QString Numsort(QStringView text) const;
    [[nodiscard]] QString SortReverse(QStringView text) const;
    [[nodiscard]] QString KeywordSort(QStringView text) const;
    [[nodiscard]] std::optional<QString> sortedLines(QStringView text) const;
    [[nodiscard]] std::optional<QString> sortedByNumber(QStringView text) const;
    [[nodiscard]] std::optional<QString> reversedLines(QStringView text) const;
    [[nodiscard]] std::optional<QString> sortedKeywords(QStringView text) const;

    // Word wrap (word_wrap.cpp)

    [[nodiscard]] QString WordWrap(QStringView text, int pageWidth, bool hanging, bool tab,
                                   bool justify) const;

    // Numbering and bullets (numbering.cpp, list_removal.cpp)

    /// `style` 0 to 5, `followChar` 0 to 3 as in text/numbering.h; other values are brought to the nearest.
    [[nodiscard]] QString number(QStringView text, int firstNumber, int style, int followChar, bool tab,
                                 int spaces) const;
    [[nodiscard]] QString LineNumber(QStringView text, int start, int step, int every, bool numberBlankLines,
                                     bool pad, bool rangeRight) const;
    [[nodiscard]] QString removeNumbers(QStringView text) const;
    [[nodiscard]] QString RemoveLineNumbers(QStringView text) const;
    [[nodiscard]] QString removeBullets(QStringView text) const;

    // Decoding (decoding.cpp)

    [[nodiscard]] QString PlainChars(QStringView text) const;
    [[nodiscard]] QString CurlyQuotes(QStringView text) const;
    [[nodiscard]] QString URLdecode(QStringView text) const;
    [[nodiscard]] QString HTMLdecode(QStringView text) const;
    [[nodiscard]] QString Stripmail(QStringView text) const;

    // Checks (punctuation.cpp, statistics.cpp)

    [[nodiscard]] QString checkPunctuation(QStringView text, bool silent) const;
    [[nodiscard]] TextStatistics statistics(QStringView fullText, QStringView selection) const;

  private:
    TextHost &m_host;
    QString sTLD;
    AddressRules m_addresses;
};

} // namespace tolvo
