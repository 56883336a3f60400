// SPDX-License-Identifier: MIT
// The text engine: every tool is one operation, string in, string out. Each topic has a file of its own
// beside this header (case.cpp, spacing.cpp, sorting.cpp...).
//
// Positions count from 1 in UTF-16 code units unless stated otherwise. A line ends in CR LF and nothing else,
// and a blank is U+0020. White space is the set sWhiteSpace, letters are those of Windows-1252 (base/). Where
// nothing else is said, an empty text gives an empty text and nothing fails.
//
// In the examples "|" stands for CR LF, and "\t" for TAB.
#pragma once

#include "text/numbering.h"
#include "text/statistics.h"
#include "text/text_host.h"
#include "text/word_rules.h"

#include <QString>
#include <QStringView>
#include <optional>

namespace tolvo {

/// The answer of the sorts for a text that they can't sort.
inline constexpr QStringView sortError = u"<ERROR>";

/// Stateless between calls, apart from the list of top level domains in use.
class cTextMethods {
  public:
    using KnownExtension = AddressRules::KnownExtension;

    /// `host` shows status texts and warnings and must outlive the engine. `isKnownExtension` decides whether
    /// a file extension (without its stop) is one that the system or the user knows: a word with such an
    /// ending is a file name. The short list of top level domains is in use at first.
    cTextMethods(TextHost &host, KnownExtension isKnownExtension);

    /// Sets the list of top level domains (sTLD), by which an address is recognised: see
    /// text/top_level_domains.h. A list without a comma at both ends loses its first and last entry.
    void setTopLevelDomains(const QString &list);
    /// The list of top level domains in use.
    [[nodiscard]] const QString &topLevelDomains() const { return sTLD; }
    /// What recognises addresses and file names, by that list and the known extensions.
    [[nodiscard]] const AddressRules &addressRules() const { return m_addresses; }

    // Primitives (primitives.cpp)

    /// The number of occurrences, overlapping ones included, as decimal text. An empty needle occurs nowhere.
    ///   Count(u"aaaa", u"aa", Qt::CaseSensitive) == u"3"
    [[nodiscard]] QString Count(QStringView text, QStringView needle, Qt::CaseSensitivity compare) const;

    /// Gives the row and column, both from 1, of a position that counts from 0. The position between CR and
    /// LF is column 0 of the next row. A position after the text's end leaves both arguments as they are.
    ///   getColRow(u"ab|cd", 4, row, column) gives row 2, column 1
    void getColRow(QStringView text, qsizetype position, int &row, int &column) const;

    /// True if no letter precedes the position. A position below 2 starts a word.
    ///   atStartOfWord(u"a b", 3) is true, atStartOfWord(u"ab", 2) is false
    [[nodiscard]] bool atStartOfWord(QStringView text, qsizetype position) const;

    /// True if the character at the position is not a letter; the position is the one after the word. The
    /// text's last character is not tested: a word that ends just before it counts as ended.
    ///   atEndOfWord(u"abc", 2) is false, atEndOfWord(u"abc", 3) is true
    [[nodiscard]] bool atEndOfWord(QStringView text, qsizetype position) const;

    /// The replacement with the capitals of the text that it replaces, the model: all upper case if the model
    /// starts with two capitals, an upper-case first character if it starts with one, no change otherwise.
    ///   smartMatch(u"Hello", u"world") == u"World", smartMatch(u"HELLO", u"world") == u"WORLD"
    [[nodiscard]] QString smartMatch(QStringView model, QStringView replacement) const;

    // Case (case.cpp, titles.cpp). Each sets a status text, but for a title that is returned unchanged.

    /// Swaps upper and lower case. Characters without case stay, and so do those whose other case needs more
    /// than one code unit.
    ///   ReverseCase(u"aB1") == u"Ab1"
    [[nodiscard]] QString ReverseCase(QStringView text) const;

    /// Gives each sentence a capital and makes the rest lower case, except for the pronoun "I". A stop in an
    /// abbreviation or an address, or before a digit, ends no sentence, and neither does a line end. A lone
    /// "i" as the text's last character stays in lower case.
    ///   SentenceCase(u"HELLO WORLD. and i am here.") == u"Hello world. And I am here."
    [[nodiscard]] QString SentenceCase(QStringView text) const;

    /// Gives each sentence a capital, and the pronoun "I", and leaves all other letters as they are. With
    /// `colonEndsSentence` a colon ends a sentence too.
    ///   Capitalise(u"one: two", true) == u"One: Two"
    [[nodiscard]] QString Capitalise(QStringView text, bool colonEndsSentence) const;

    /// Gives each word a capital and makes its other letters lower case, in the `length` units from `start`,
    /// and returns these. The text around them is only looked at. What follows a hyphen is a word of its own,
    /// except after a prefix such as "re". Parts of the range outside the text are left out.
    ///   InitialCaps(u"one two", 5, 99) == u"Two"
    [[nodiscard]] QString InitialCaps(QStringView text, qsizetype start, qsizetype length) const;

    /// Writes the selection (its start counts from 0) as a title and returns it. Small words such as "of"
    /// stay in lower case, except as the first or last word; acronyms and addresses stay as they are. A
    /// selection that starts inside a word gives a warning and is returned unchanged; so is one without a
    /// letter. In a selection after the text's start most words count as the last one.
    ///   TitleCase(u"the lord of the rings", 0, 21) == u"The Lord of the Rings"
    [[nodiscard]] QString TitleCase(QStringView text, qsizetype selStart, qsizetype selLength) const;

    // Spacing and lines (spacing.cpp, paragraphs.cpp, indents.cpp)

    /// Removes white space at the end of each line. The number of lines stays.
    ///   TrimTrail(u" a \t|\u00A0|b\r|") == u" a||b|"
    [[nodiscard]] QString TrimTrail(QStringView text) const;

    /// Removes white space at both ends of each line. Blank lines become empty and stay.
    ///   TrimWhiteSpace(u"\t\u00A0 | a b\u00A0|") == u"|a b|"
    [[nodiscard]] QString TrimWhiteSpace(QStringView text) const;

    /// Reduces each run of blanks inside a line to one, or to none beside a TAB, and removes white space at
    /// the line's end. The indentation stays. All no-break spaces become blanks first. Blank lines become
    /// empty.
    ///   SingleSpace(u"  a   b  ") == u"  a b"
    [[nodiscard]] QString SingleSpace(QStringView text) const;

    /// Makes every lone CR and lone LF a CR LF. A lone CR at the very end is removed.
    ///   RegularEOL(u"a\rb\nc|d\r") == u"a|b|c|d"
    [[nodiscard]] QString RegularEOL(QStringView text) const;

    /// Removes blank lines: those that stand alone with `single`, all but one of a run with `multiple`, all
    /// of them with both. With neither, a run of two or more grows by one line. Blanks at line ends go, and
    /// so do all line ends at the end of the text.
    ///   removeExtraLines(u"a|| \u00A0||b", true, true) == u"a|b"
    [[nodiscard]] QString removeExtraLines(QStringView text, bool single, bool multiple) const;

    /// Joins the lines of each paragraph into one. A blank line, an indented line, a line with a bullet and
    /// the line after a numbered item begin a new one. A run of blank lines shrinks to one.
    ///   Paragraph(u"a  |b|c") == u"a b c"
    [[nodiscard]] QString Paragraph(QStringView text) const;

    /// Puts the indent string before each line. Lines of blanks become empty instead.
    ///   Indent(u"a|  |\t|", u"> ") == u"> a||> \t|"
    [[nodiscard]] QString Indent(QStringView text, QStringView indent) const;

    /// Removes the indent string, once, from each line that starts with exactly that.
    ///   Unindent(u"> a|>b| > c|> > d|", u"> ") == u"a|>b| > c|> d|"
    [[nodiscard]] QString Unindent(QStringView text, QStringView indent) const;

    /// Replaces each TAB by blanks up to the next multiple of `tabWidth`, which is 1 at least. `startColumn`
    /// is the column, from 0, at which the first line begins; all other lines begin at 0.
    ///   Tab2space(u"ab\tc|ab\tc\t", 3, 8) == u"ab   c|ab      c       "
    [[nodiscard]] QString Tab2space(QStringView text, int startColumn, int tabWidth) const;

    /// Replaces each run of two or more blanks by one TAB, whatever the column.
    ///   Spaces2tab(u"a   b c  |  ") == u"a\tb c\t|\t"
    [[nodiscard]] QString Spaces2tab(QStringView text) const;

    // Sorting (sorting.cpp). The sorts are not stable: text/partition_sort.h describes the order of equal
    // keys and names the source.

    /// Sorts the lines as text, in any case and without the white space around them. Empty lines go; lines of
    /// white space come first. Gives sortError for a text of blanks alone or without a CR LF.
    ///   Sort(u"10|9|100") == u"10|100|9"
    [[nodiscard]] QString Sort(QStringView text) const;

    /// Sorts the lines by the number at their front (ValueOf), which is 0 where there is none. Empty lines
    /// go, and so do the blanks around each line. Gives sortError as Sort does.
    ///   Numsort(u"10|9|100") == u"9|10|100"
    [[nodiscard]] QString Numsort(QStringView text) const;

    /// Puts the lines in reverse order, empty ones included. Gives sortError as Sort does.
    ///   SortReverse(u"b|a||c") == u"c||a|b"
    [[nodiscard]] QString SortReverse(QStringView text) const;

    /// Sorts the items of each line, which commas separate, in any case. Empty items go; a line without a
    /// comma stays as it is. Gives sortError for a text of blanks alone or without a comma.
    ///   KeywordSort(u"pear, apple,, Fig") == u"apple, Fig, pear"
    [[nodiscard]] QString KeywordSort(QStringView text) const;

    // The same four, but with nothing in place of sortError, which a sorted text may happen to equal.

    [[nodiscard]] std::optional<QString> sortedLines(QStringView text) const;    ///< as Sort
    [[nodiscard]] std::optional<QString> sortedByNumber(QStringView text) const; ///< as Numsort
    [[nodiscard]] std::optional<QString> reversedLines(QStringView text) const;  ///< as SortReverse
    [[nodiscard]] std::optional<QString> sortedKeywords(QStringView text) const; ///< as KeywordSort

    // Word wrap (word_wrap.cpp)

    /// Breaks lines at blanks and TABs so that they fit into `pageWidth` characters, TABs at stops of 8; a
    /// longer word stands on a line of its own. With `hanging`, the lines so begun are indented by a TAB
    /// (`tab`) or by eight blanks. `justify` spreads the words of each line that was broken over the page, at
    /// random where the blanks don't come out even. After the text's last blank nothing is broken any more.
    ///   WordWrap(u"aaaa bbbb cccc dddd eeee ", 20, false, true, false) == u"aaaa bbbb cccc dddd|eeee"
    [[nodiscard]] QString WordWrap(QStringView text, int pageWidth, bool hanging, bool tab,
                                   bool justify) const;

    // Numbering and bullets (numbering.cpp, list_removal.cpp)

    /// Puts a mark before each line: see numlistFormatNumber (text/numbering.h) for `followChar`, `tab` and
    /// `spaces`. An indented line continues the item above and takes no number, but in an outline its
    /// indentation is its level. Blank lines stay. With FollowChar::Stop and a TAB:
    ///   Decimal: u"a||b|  |c" gives u"1.\ta||2.\tb|  |3.\tc"
    ///   Outline: u"a|\tb|\tc|d" gives u"1.\ta|\t1.1.\tb|\t1.2.\tc|2.\td"
    [[nodiscard]] QString number(QStringView text, int firstNumber, ListStyle style, FollowChar followChar,
                                 bool tab, int spaces) const;

    /// Puts a line number and a blank before each line, from `start` on in steps of `step`, and shows each
    /// `every`-th of them; the others leave blanks in its place. Blank lines get none without
    /// `numberBlankLines`. `pad` makes the numbers equally wide, aligned to the right with `rangeRight`. A
    /// step or `every` below 1 counts as 1.
    ///   LineNumber(u"a|b|c", 8, 1, 1, false, true, true) == u" 8 a| 9 b|10 c"
    [[nodiscard]] QString LineNumber(QStringView text, int start, int step, int every, bool numberBlankLines,
                                     bool pad, bool rangeRight) const;

    /// Removes the list mark of each line, decimal or Roman, and the white space after it; the indentation
    /// stays. A doubtful Roman mark such as "i." goes only if a line beside it has one too.
    ///   removeNumbers(u"12. Item") == u"Item", removeNumbers(u"i. said so") == u"i. said so"
    [[nodiscard]] QString removeNumbers(QStringView text) const;

    /// Removes the digits at the front of each line and the blanks around them, which go without digits too.
    /// Lines of blanks stay.
    ///   RemoveLineNumbers(u"  1 a| 10   b|   c|12|\t3") == u"a|b|c||\t3"
    [[nodiscard]] QString RemoveLineNumbers(QStringView text) const;

    /// Removes one run of bulletMarks at the front of each line and the white space after it; the indentation
    /// stays. A minus sign goes too.
    ///   removeBullets(u"- * item") == u"* item"
    [[nodiscard]] QString removeBullets(QStringView text) const;

    // Decoding (decoding.cpp)

    /// Makes typographic quote marks, dashes and ellipses plain ASCII. Other characters stay.
    ///   PlainChars(u"‚‘’“”„…´–—é") == u"'''\"\"\"...'--é"
    [[nodiscard]] QString PlainChars(QStringView text) const;

    /// Makes quote marks curly, "--" and "---" dashes, "..." an ellipsis. Quotations that are still open at
    /// the end give a warning.
    ///   CurlyQuotes(u"don't") == u"don’t"
    [[nodiscard]] QString CurlyQuotes(QStringView text) const;

    /// Decodes percent encoding (RFC 3986, section 2.1). Each escape gives the Windows-1252 character of its
    /// code, so the bytes of UTF-8 come out one by one. Malformed escapes stay, and so does "+".
    ///   URLdecode(u"%41%42") == u"AB", URLdecode(u"a%2") == u"a%2"
    [[nodiscard]] QString URLdecode(QStringView text) const;

    /// Decodes character references, first the numeric and then the named ones: see text/entities.h for the
    /// source and the odd cases. Fails with an overflow for a reference that is too long.
    ///   HTMLdecode(u"&#65;&#233;&#65281;&#150;") == u"Aé!–"
    [[nodiscard]] QString HTMLdecode(QStringView text) const;

    /// Removes the quoting marks of mail replies, ">" (RFC 3676, section 4.5) and "|", from the start of each
    /// line, and the blanks after each mark. A line that starts with a blank stays. "|" stands for itself
    /// here:
    ///   Stripmail(u"> > quoted\r\n|>x\r\n >y\r\n>|") == u"quoted\r\nx\r\n >y\r\n"
    [[nodiscard]] QString Stripmail(QStringView text) const;

    // Checks (punctuation.cpp, statistics.cpp)

    /// Puts blanks where they belong around stops, brackets and quotation marks, except in numbers,
    /// abbreviations and addresses. Unless `silent`, brackets and quotations without a partner give a
    /// warning.
    ///   checkPunctuation(u"Hello ,world.", false) == u"Hello, world."
    [[nodiscard]] QString checkPunctuation(QStringView text, bool silent) const;

    /// Measures the full text and the selection. The selection's characters include its CRs, the full text's
    /// don't. An empty text measures 0 throughout.
    ///   statistics(u"a b. c d?|", {}) gives 22 bytes, 9 characters, 6 printable, 4 words, 2 lines, 1
    ///   paragraph, 2 sentences, "2 words" a sentence
    [[nodiscard]] TextStatistics statistics(QStringView fullText, QStringView selection) const;

    // What lives for a fixed name alone: the program calls what these are made of.

    /// Removes white space at the start of the whole text, blank lines included.
    ///   LTrimWhiteSpace(u" ||\t\u00A0a |") == u"a |"
    [[nodiscard]] QString LTrimWhiteSpace(QStringView text) const;

    /// Removes stop characters and closing brackets at the end of the whole text; anything else, a blank
    /// included, ends the removal.
    ///   TrimStopChars(u".a.?)]} ,;:!") == u".a.?)]} "
    [[nodiscard]] QString TrimStopChars(QStringView text) const;

    /// Removes quote marks, straight and curly, at both ends of the whole text.
    ///   TrimQuotes(u"\"‘a'b”’") == u"a'b"
    [[nodiscard]] QString TrimQuotes(QStringView text) const;

    /// True if the list holds the word between two commas, in any case. The first and the last entry of a
    /// list without a comma at both ends are never found.
    ///   IsInList(u"B", u",a,b,") is true, IsInList(u"a", u"a,b") is false
    [[nodiscard]] bool IsInList(QStringView word, QStringView list) const;

  private:
    TextHost &m_host;
    QString sTLD;
    AddressRules m_addresses;
};

} // namespace tolvo
