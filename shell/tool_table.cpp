// SPDX-License-Identifier: MIT
#include "shell/tool_table.h"

#include "platform/text_box.h"
#include "shell/finding_tools.h"
#include "shell/line_operations.h"
#include "shell/moving_lines.h"
#include "shell/pattern_operations.h"
#include "shell/search_tools.h"
#include "shell/selection_tools.h"
#include "shell/spelling_tools.h"
#include "shell/text_difference.h"
#include "shell/text_operations.h"
#include "shell/tool_operations.h"
#include "text/cTextMethods.h"
#include "text/coding.h"
#include "text/identifiers.h"
#include "text/language_case.h"
#include "text/letters.h"
#include "text/line_order.h"
#include "text/line_parts.h"
#include "text/line_sets.h"
#include "text/notation.h"
#include "text/page_text.h"
#include "text/reflow.h"
#include "text/tables.h"
#include "text/typography.h"

namespace tolvo {

namespace {

using namespace toolOperations;

// What fills the other columns: selection and selected length (O the old one, N the new one, C only the caret
// after the new text), status, and the answers of the sorts

using Reach = SelectionRule::Reach;
using Length = SelectionRule::Length;
constexpr SelectionRule O{Reach::AsSelected, Length::Old};
constexpr SelectionRule N{Reach::AsSelected, Length::New};
constexpr SelectionRule C{Reach::AsSelected, Length::Caret};
constexpr SelectionRule lines_O{Reach::WholeLines, Length::Old};
constexpr SelectionRule lines_N{Reach::WholeLines, Length::New};
constexpr SelectionRule lines_C{Reach::WholeLines, Length::Caret};
constexpr SelectionRule own{}; // the procedure sees to it

constexpr ToolStatus removed{ToolStatus::Kind::Removed};
constexpr bool sixteenBit = true;

constexpr ToolStatus says(const char16_t *text) {
    return {ToolStatus::Kind::Text, text};
}

constexpr ToolStatus length(const char16_t *text) {
    return {ToolStatus::Kind::Length, text};
}

constexpr ToolStatus lengthUnlessWarned(const char16_t *text) {
    return {ToolStatus::Kind::LengthUnwarned, text};
}

constexpr SortRefusal noKeywords{
    u"Copy the text you want to sort onto the clipboard (Ctrl-C), separated by commas.\r\n"
    u"Then choose Refresh.",
    SortRefusal::When::Always};
constexpr SortRefusal noLines{u"To sort the lines in a text,\r\n"
                              u"copy the text you want to sort onto the clipboard (Ctrl-C).\r\n"
                              u"Then choose Refresh.",
                              SortRefusal::When::WithoutSelection};
constexpr SortRefusal oneLine{u"Please select more than one line.", SortRefusal::When::Always, true};

using T = cTextMethods;

// clang-format off
constexpr ToolRow table[] = {
    // token     operation                               selection  status
    {u"ccUPP",  text<upperCase>(),                      O,        length(u" characters: upper case"), sixteenBit},
    {u"ccLOW",  text<lowerCase>(),                      O,        length(u" characters: lower case"), sixteenBit},
    {u"ccREV",  engine<&T::ReverseCase>(),              O,        length(u" characters: reversed case"), sixteenBit},
    {u"ccINC",  text<initialCaps>(),                    O,        length(u" characters: Initial caps")},
    {u"ccTIT",  text<titleCase>(),                      O,        lengthUnlessWarned(u" characters: title case"), sixteenBit},
    {u"ccSEN",  engine<&T::SentenceCase>(),             O,        length(u" characters: sentence case")},
    {u"ccCAP",  text<capitalise>(),                     O,        length(u" characters: sentence case")}, // the same words as ccSEN

    {u"soKEY",  engine<&T::sortedKeywords>(),           lines_O,  says(u"Sorted"), sixteenBit, noKeywords},
    {u"soALP",  engine<&T::sortedLines>(),              lines_O,  says(u"Lines sorted"), sixteenBit, noLines},
    {u"soNUM",  engine<&T::sortedByNumber>(),           lines_O,  says(u"Lines sorted"), sixteenBit, noLines},
    {u"soREV",  engine<&T::reversedLines>(),            lines_O,  says(u"Line order reversed"), false, oneLine},
    {u"soNUP",  onText<moveLinesUp>(),                  own},
    {u"soNUD",  onText<moveLinesDown>(),                own},

    {u"foTRA",  engine<&T::TrimTrail>(),                N,        removed},
    {u"foTRM",  engine<&T::TrimWhiteSpace>(),           N,        removed},
    {u"foSSP",  engine<&T::SingleSpace>(),              N,        removed},
    {u"foIND",  asked<indent>(),                        lines_N,  says(u"Indent increased")},
    {u"foUNI",  asked<unindent>(),                      lines_N,  says(u"Indent reduced")},
    {u"foT2S",  text<tabsToSpaces>(),                   N,        says(u"Tabs converted to spaces")},
    {u"foS2T",  engine<&T::Spaces2tab>(),               N,        says(u"Spaces converted to tabs")},
    {u"foWRP",  asked<wrapWords>(),                     lines_C},
    {u"foREM",  asked<removeLines>(),                   N,        removed},
    {u"foPAR",  engine<&T::Paragraph>(),                C,        removed},
    {u"foCOL",  nothing(),                              own},

    {u"edSTR",  engine<&T::Stripmail>(),                lines_N,  removed},
    {u"edPLA",  engine<&T::PlainChars>(),               O},
    {u"edCRL",  engine<&T::CurlyQuotes>(),              lines_N,  says(u"Quotation marks changed")},
    {u"edUDC",  engine<&T::URLdecode>(),                N,        says(u"Decoded")},
    {u"edHDC",  engine<&T::HTMLdecode>(),               N,        says(u"Decoded")},
    {u"edEOL",  engine<&T::RegularEOL>(),               N,        says(u"Line endings regularised")},
    {u"edSRC",  searching<false>(),                     own},
    {u"edREP",  searching<true>(),                      own},
    {u"edCPM",  copyingMatches(),                       own},

    {u"liBUL",  asked<bullets>(),                       lines_N},
    {u"liNUM",  asked<numberedList>(),                  lines_N},
    {u"liREN",  asked<lineNumbers>(),                   lines_N},
    {u"liRMB",  engine<&T::removeBullets>(),            lines_N,  says(u"Bullets removed")},
    {u"liREM",  engine<&T::removeNumbers>(),            lines_N,  says(u"Numbering removed")},
    {u"liRLN",  engine<&T::RemoveLineNumbers>(),        lines_N,  says(u"Numbering removed")},

    {u"chPNC",  text<checkPunctuation>(),               lines_N,  says(u"Punctuation checked")},
    {u"chSPE",  spelling<false>(),                      own},
    {u"chGRA",  spelling<true>(),                       own},
    {u"chSTAT", inSession(showStatistics),            own},

    {u"lnDUP",  pure<withoutDuplicates>(),              lines_N,  removed},
    {u"lnNAT",  pure<naturallySorted>(),                lines_O,  says(u"Lines sorted")},
    {u"lnSHU",  text<shuffledLines>(),                  lines_O,  says(u"Lines shuffled")},
    {u"lnSEN",  pure<sentencesAsLines>(),               lines_N,  says(u"One sentence a line")},
    {u"lnCNT",  pure<countedLines>(),                   lines_N,  says(u"Lines counted")},
    {u"lnWRD",  pure<countedWords>(),                   N,        says(u"Words counted")},
    {u"lnREC",  pure<reversedCharacters>(),             N,        says(u"Characters reversed")},
    {u"tbALI",  pure<alignedTable>(),                   lines_N,  says(u"Columns aligned")},
    {u"tbMKD",  pure<markdownTable>(),                  lines_N,  says(u"Markdown table")},
    {u"tbCSV",  pure<csvTable>(),                       lines_N,  says(u"Columns separated by commas")},
    {u"tbTAB",  pure<tabTable>(),                       lines_N,  says(u"Columns separated by tabs")},
    {u"tbTRA",  pure<transposedTable>(),                lines_N,  says(u"Rows and columns swapped")},

    {u"tbCOL",  asked<chooseColumns>(),                 lines_N},
    {u"lnSRT",  asked<sortedLines>(),                   lines_N,  says(u"Lines sorted")},
    {u"lnSRP",  asked<sortByPattern>(),                 lines_N},
    {u"lnUNI",  asked<removeDuplicates>(),              lines_N},
    {u"lnPAT",  asked<choosePatternLines>(),            lines_N},
    {u"lnNTH",  asked<chooseEveryLine>(),               lines_N},
    {u"lnAFF",  asked<withTextAround>(),                lines_N,  says(u"Text put around lines")},
    {u"lnSEP",  asked<splitOrJoined>(),                 lines_N,  says(u"Lines split or joined")},
    {u"lnREW",  pure<withWordsReversed>(),              lines_N,  says(u"Words reversed")},

    {u"cdHTE",  pure<htmlEncoded>(),                    N,        says(u"Encoded")},
    {u"cdURE",  pure<urlEncoded>(),                     N,        says(u"Encoded")},
    {u"cdURD",  decoding<urlDecoded>(),                 N},
    {u"cdB6E",  pure<base64Encoded>(),                  N,        says(u"Encoded")},
    {u"cdB6D",  decoding<base64Decoded>(),              N},
    {u"cdJSE",  pure<jsonEscaped>(),                    N,        says(u"Escaped")},
    {u"cdJSD",  decoding<unescapedString>(),            N},
    {u"cdUNE",  pure<unicodeEscaped>(),                 N,        says(u"Escaped")},
    {u"tyACC",  pure<withoutAccents>(),                 N,        says(u"Accents removed")},
    {u"tyCOM",  pure<composed>(),                       N,        says(u"Accents composed")},
    {u"tyLIG",  pure<withoutLigatures>(),               N,        says(u"Ligatures removed")},
    {u"tyUNS",  pure<withoutUnseen>(),                  N,        removed},
    {u"idCAM",  pure<camelCase>(),                      N,        says(u"camelCase")},
    {u"idPAS",  pure<pascalCase>(),                     N,        says(u"PascalCase")},
    {u"idSNA",  pure<snakeCase>(),                      N,        says(u"snake_case")},
    {u"idKEB",  pure<kebabCase>(),                      N,        says(u"kebab-case")},
    {u"idCON",  pure<constantCase>(),                   N,        says(u"CONSTANT_CASE")},

    {u"tyTYP",  asked<typographic>(),                     N,        says(u"Typography set")},
    {u"tyASC",  pure<straightSigns>(),                  N,        says(u"Signs made plain")},
    {u"ccLAN",  asked<caseByLanguage>(),                  N,        length(u" characters: case by language")},
    {u"paWRP",  asked<wrappedParagraphs>(),               lines_N,  says(u"Paragraphs wrapped")},
    {u"paUNW",  pure<unwrappedParagraphs>(),            lines_N,  says(u"Paragraphs unwrapped")},
    {u"paPDF",  pure<joinedPdfLines>(),                 lines_N,  says(u"Lines joined")},

    {u"cdHNE",  pure<htmlNamed>(),                      N,        says(u"Encoded")},
    {u"cdHND",  decoding<htmlReferencesDecoded>(),      N},
    {u"cdQPE",  pure<quotedPrintableEncoded>(),         N,        says(u"Encoded")},
    {u"cdQPD",  decoding<quotedPrintableDecoded>(),     N},
    {u"cdCSE",  pure<cEscaped>(),                       N,        says(u"Escaped")},
    {u"cdCSD",  decoding<cUnescaped>(),                 N},
    {u"cdSHE",  pure<shellQuoted>(),                    N,        says(u"Quoted")},
    {u"cdSHD",  decoding<shellUnquoted>(),              N},
    {u"cdXME",  pure<xmlEscaped>(),                     N,        says(u"Escaped")},
    {u"cdXMD",  decoding<xmlUnescaped>(),               N},
    {u"cdCVE",  pure<csvQuoted>(),                      lines_N,  says(u"Quoted")},
    {u"cdCVD",  decoding<csvUnquoted>(),                lines_N},
    {u"exWEB",  text<foundWebAddresses>(),              N},
    {u"exMAI",  text<foundMailAddresses>(),             N},
    {u"exNUM",  text<foundNumbers>(),                   N},
    {u"exDAT",  text<foundDates>(),                     N},
    {u"exCNT",  asked<countMatches>(),                  N},
    {u"pgHTM",  pure<htmlAsText>(),                     N,        says(u"Page as plain text")},
    {u"pgMKD",  pure<markdownAsText>(),                 N,        says(u"Markdown as plain text")},
    {u"chDIF",  inSession(compareWithClipboard),        own},
    {u"chDIW",  inSession(compareWordsWithClipboard),   own},

    {u"pbPBT",  nestedPowerButton(),                    own},
    {u"pbCLR",  onText<clearSelection>(),               own},
    {u"pbALL",  onText<selectAll>(),                    own},
    {u"pbTAG",  onText<selectBetweenTags>(),            own},
    {u"pbCPY",  inSession(copySelection),             own},
    {u"pbCUT",  inSession(cutSelection),              own},
    {u"pbDEL",  inSession(deleteSelection),           own},
    {u"pbPST",  inSession(pasteAndSelect),            own},
};
// clang-format on

} // namespace

QString ToolInput::wholeText() const {
    return selected ? context.box.Text() : text;
}

std::span<const ToolRow> toolTable() {
    return table;
}

const ToolRow *toolRow(QStringView token) {
    for (const ToolRow &row : table) {
        if (token == QStringView(row.token))
            return &row;
    }
    return nullptr;
}

} // namespace tolvo
