// SPDX-License-Identifier: MIT
#include "shell/tool_table.h"

#include "base/code_page.h"
#include "shell/frmMain.h"
#include "shell/selection_tools.h"

namespace tolvo {

namespace {

// Operations that take their settings from a dialog or an Action

QString indent(const ToolInput &in, const IndentSettings &settings) {
    return in.session.oTextMethods.Indent(in.text, settings.prefix());
}

QString unindent(const ToolInput &in, const IndentSettings &settings) {
    return in.session.oTextMethods.Unindent(in.text, settings.prefix());
}

QString wrapWords(const ToolInput &in, const WordWrapSettings &settings) {
    return in.session.oTextMethods.WordWrap(in.text, settings.width, settings.hanging, settings.tab,
                                            settings.justify);
}

QString removeLines(const ToolInput &in, const RemoveLinesSettings &settings) {
    return in.session.oTextMethods.removeExtraLines(in.text, settings.single, settings.multiple);
}

QString bullets(const ToolInput &in, const BulletSettings &settings) {
    return in.session.oTextMethods.Indent(in.text, settings.prefix());
}

QString numberedList(const ToolInput &in, const NumberListSettings &settings) {
    const cTextMethods &engine = in.session.oTextMethods;
    const QString text = settings.renumber ? engine.removeNumbers(in.text) : in.text;
    return engine.number(text, settings.start, settings.style, settings.followChar, settings.tab,
                         settings.spaces);
}

QString lineNumbers(const ToolInput &in, const LineNumberSettings &settings) {
    const cTextMethods &engine = in.session.oTextMethods;
    const QString text = settings.renumber ? engine.RemoveLineNumbers(in.text) : in.text;
    return engine.LineNumber(text, settings.start, settings.step, settings.every, !settings.ignoreBlanks,
                             settings.pad, settings.rangeRight);
}

// Operations without settings that are more than one call of the engine

QString upperCase(const ToolInput &in) {
    return toUpper(in.text);
}

QString lowerCase(const ToolInput &in) {
    return toLower(in.text);
}

QString initialCaps(const ToolInput &in) {
    const QString whole = in.selected ? in.session.txtCurrent().Text() : in.text;
    return in.session.oTextMethods.InitialCaps(whole, in.start + 1, in.text.size());
}

QString titleCase(const ToolInput &in) {
    const QString whole = in.selected ? in.session.txtCurrent().Text() : in.text;
    return in.session.oTextMethods.TitleCase(whole, in.start, in.text.size());
}

QString capitalise(const ToolInput &in) {
    return in.session.oTextMethods.Capitalise(in.text, false);
}

QString tabsToSpaces(const ToolInput &in) {
    const int column = in.selected ? in.start - startOfLine(in.session.txtCurrent().Text(), in.start) : 0;
    return in.session.oTextMethods.Tab2space(in.text, column, 8);
}

QString checkPunctuation(const ToolInput &in) {
    return in.session.oTextMethods.checkPunctuation(in.text, false);
}

// What fills the column Operation of the table

/// An operation of the text engine that takes nothing but the text.
template <auto operation>
constexpr ToolOperation engine() {
    return {.prepare = [](frmMain &, const CAction *) -> std::optional<TextOperation> {
        return [](const ToolInput &in) { return (in.session.oTextMethods.*operation)(in.text); };
    }};
}

template <QString (*operation)(const ToolInput &)>
constexpr ToolOperation text() {
    return {.prepare = [](frmMain &, const CAction *) -> std::optional<TextOperation> { return operation; }};
}

/// The settings of an Action, else those last used, which the user may change first unless the right button
/// called the tool. Nothing if the user cancelled.
template <class Settings>
std::optional<Settings> settingsFor(frmMain &session, const CAction *action) {
    if (action)
        return settingsFromAction<Settings>(action->params());
    Settings &settings = session.toolSettings().get<Settings>();
    if (!session.bRightButton && !session.services().windows.toolDialogs().ask(settings))
        return std::nullopt;
    return settings;
}

template <class Settings, QString (*operation)(const ToolInput &, const Settings &)>
constexpr ToolOperation asked() {
    return {.prepare = [](frmMain &session, const CAction *action) -> std::optional<TextOperation> {
        const std::optional<Settings> settings = settingsFor<Settings>(session, action);
        if (!settings)
            return std::nullopt;
        return [settings = *settings](const ToolInput &in) { return operation(in, settings); };
    }};
}

/// A procedure of the session that needs no settings.
template <void (frmMain::*procedure)()>
constexpr ToolOperation handler() {
    return {.procedure = [](frmMain &session, const CAction *) { (session.*procedure)(); }};
}

template <void (*procedure)(frmMain &)>
constexpr ToolOperation onSelection() {
    return {.procedure = [](frmMain &session, const CAction *) { procedure(session); }};
}

template <bool replace>
constexpr ToolOperation searching() {
    return {.procedure = [](frmMain &session, const CAction *action) {
        if (action)
            session.RunSearchAction(replace, *action);
        else if (session.bRightButton && session.runsPowerButton())
            session.runLastSearch(replace);
        else
            session.OpenSearchDialog(replace);
    }};
}

template <bool grammar>
constexpr ToolOperation spelling() {
    return {
        .procedure = [](frmMain &session, const CAction *action) { session.checkSpelling(grammar, action); }};
}

constexpr ToolOperation nothing() {
    return {.procedure = [](frmMain &, const CAction *) {}};
}

constexpr ToolOperation nestedPowerButton() {
    return {.procedure = [](frmMain &session, const CAction *action) {
        if (action)
            session.runNestedPowerButton(*action);
    }};
}

// What fills the other columns: selection and selected length (O the old one, N the new one, C only the caret
// behind the new text), status, and the answers of the sorts

constexpr SelectionRule O{SelectionRule::AsSelected, SelectionRule::OldLength};
constexpr SelectionRule N{SelectionRule::AsSelected, SelectionRule::NewLength};
constexpr SelectionRule C{SelectionRule::AsSelected, SelectionRule::CaretBehind};
constexpr SelectionRule lines_O{SelectionRule::WholeLines, SelectionRule::OldLength};
constexpr SelectionRule lines_N{SelectionRule::WholeLines, SelectionRule::NewLength};
constexpr SelectionRule lines_C{SelectionRule::WholeLines, SelectionRule::CaretBehind};
constexpr SelectionRule own{}; // the procedure sees to it

constexpr const char16_t *noDialog = u"";
constexpr ToolStatus removed{ToolStatus::Removed};
constexpr bool sixteenBit = true;

constexpr ToolStatus says(const char16_t *text) {
    return {ToolStatus::Text, text};
}

constexpr ToolStatus length(const char16_t *text) {
    return {ToolStatus::Length, text};
}

constexpr SortRefusal noKeywords{
    u"Copy the text you want to sort onto the clipboard (Ctrl-C), separated by commas.\r\n"
    u"Then choose Refresh.",
    SortRefusal::Always};
constexpr SortRefusal noLines{u"To sort the lines in a text,\r\n"
                              u"copy the text you want to sort onto the clipboard (Ctrl-C).\r\n"
                              u"Then choose Refresh.",
                              SortRefusal::WithoutSelection};
constexpr SortRefusal oneLine{u"Please select more than one line.", SortRefusal::Always, true};

using T = cTextMethods;

// clang-format off
constexpr ToolRow table[] = {
    // token      operation                                        selection dialog               status
    {u"ccUPP",  text<upperCase>(),                                O,       noDialog,           length(u" characters: upper case"), sixteenBit},
    {u"ccLOW",  text<lowerCase>(),                                O,       noDialog,           length(u" characters: lower case"), sixteenBit},
    {u"ccREV",  engine<&T::ReverseCase>(),                        O,       noDialog,           length(u" characters: reversed case"), sixteenBit},
    {u"ccINC",  text<initialCaps>(),                              O,       noDialog,           length(u" characters: Initial caps")},
    {u"ccTIT",  text<titleCase>(),                                O,       noDialog,           {ToolStatus::LengthUnwarned, u" characters: title case"}, sixteenBit},
    {u"ccSEN",  engine<&T::SentenceCase>(),                       O,       noDialog,           length(u" characters: sentence case")},
    {u"ccCAP",  text<capitalise>(),                               O,       noDialog,           length(u" characters: sentence case")}, // the same words as ccSEN

    {u"soKEY",  engine<&T::sortedKeywords>(),                     lines_O, noDialog,           says(u"Sorted"), sixteenBit, noKeywords},
    {u"soALP",  engine<&T::sortedLines>(),                        lines_O, noDialog,           says(u"Lines sorted"), sixteenBit, noLines},
    {u"soNUM",  engine<&T::sortedByNumber>(),                     lines_O, noDialog,           says(u"Lines sorted"), sixteenBit, noLines},
    {u"soREV",  engine<&T::reversedLines>(),                      lines_O, noDialog,           says(u"Line order reversed"), false, oneLine},
    {u"soNUP",  handler<&frmMain::moveLinesUp>(),                 own},
    {u"soNUD",  handler<&frmMain::moveLinesDown>(),               own},

    {u"foTRA",  engine<&T::TrimTrail>(),                          N,       noDialog,           removed},
    {u"foTRM",  engine<&T::TrimWhiteSpace>(),                     N,       noDialog,           removed},
    {u"foSSP",  engine<&T::SingleSpace>(),                        N,       noDialog,           removed},
    {u"foIND",  asked<IndentSettings, indent>(),                  lines_N, u"dlgIndent",       says(u"Indent increased")},
    {u"foUNI",  asked<IndentSettings, unindent>(),                lines_N, u"dlgIndent",       says(u"Indent reduced")},
    {u"foT2S",  text<tabsToSpaces>(),                             N,       noDialog,           says(u"Tabs converted to spaces")},
    {u"foS2T",  engine<&T::Spaces2tab>(),                         N,       noDialog,           says(u"Spaces converted to tabs")},
    {u"foWRP",  asked<WordWrapSettings, wrapWords>(),             lines_C, u"dlgWordWrap"},
    {u"foREM",  asked<RemoveLinesSettings, removeLines>(),        N,       u"dlgRemLines",     removed},
    {u"foPAR",  engine<&T::Paragraph>(),                          C,       noDialog,           removed},
    {u"foCOL",  nothing(),                                        own,     u"frmPowerButton",  {}, false, {}, true},

    {u"edSTR",  engine<&T::Stripmail>(),                          lines_N, noDialog,           removed},
    {u"edPLA",  engine<&T::PlainChars>(),                         O},
    {u"edCRL",  engine<&T::CurlyQuotes>(),                        lines_N, noDialog,           says(u"Quotation marks changed")},
    {u"edUDC",  engine<&T::URLdecode>(),                          N,       noDialog,           says(u"Decoded")},
    {u"edHDC",  engine<&T::HTMLdecode>(),                         N,       noDialog,           says(u"Decoded")},
    {u"edEOL",  engine<&T::RegularEOL>(),                         N,       noDialog,           says(u"Line endings regularised")},
    {u"edSRC",  searching<false>(),                               own,     u"frmSearch"},
    {u"edREP",  searching<true>(),                                own,     u"frmSearch"},

    {u"liBUL",  asked<BulletSettings, bullets>(),                 lines_N, u"dlgBullet"},
    {u"liNUM",  asked<NumberListSettings, numberedList>(),        lines_N, u"dlgNumberStyle"},
    {u"liREN",  asked<LineNumberSettings, lineNumbers>(),         lines_N, u"dlgNumLines"},
    {u"liRMB",  engine<&T::removeBullets>(),                      lines_N, noDialog,           says(u"Bullets removed")},
    {u"liREM",  engine<&T::removeNumbers>(),                      lines_N, noDialog,           says(u"Numbering removed")},
    {u"liRLN",  engine<&T::RemoveLineNumbers>(),                  lines_N, noDialog,           says(u"Numbering removed")},

    {u"chPNC",  text<checkPunctuation>(),                         lines_N, noDialog,           says(u"Punctuation checked")},
    {u"chSPE",  spelling<false>(),                                own,     u"dlgDicQuickList"},
    {u"chGRA",  spelling<true>(),                                 own,     u"dlgDicQuickList"},
    {u"chSTAT", onSelection<showStatistics>(),                    own},

    {u"pbPBT",  nestedPowerButton(),                              own,     u"dlgChoosePB",     {}, false, {}, true},
    {u"pbCLR",  onSelection<clearSelection>(),                    own},
    {u"pbALL",  onSelection<selectAll>(),                         own},
    {u"pbTAG",  onSelection<selectBetweenTags>(),                 own},
    {u"pbCPY",  onSelection<copySelection>(),                     own},
    {u"pbCUT",  onSelection<cutSelection>(),                      own},
    {u"pbDEL",  onSelection<deleteSelection>(),                   own},
    {u"pbPST",  onSelection<pasteAndSelect>(),                    own},
};
// clang-format on

} // namespace

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
