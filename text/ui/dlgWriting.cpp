// SPDX-License-Identifier: MIT
// The dialogs of the tools for typography, capitals by language and paragraphs.
#include "text/language_case.h"
#include "text/reflow.h"
#include "text/typography.h"
#include "text/ui/FieldDialog.h"
#include "text/ui/tool_dialogs.h"

namespace tolvo {

namespace {

/// A text that shows what is particular to a language.
QString typographySample(TypographySettings::Language language) {
    switch (language) {
    case TypographySettings::Language::German:
        return QStringLiteral("\"Er sagte 'nein'\" - z. B. 5 km, 50 %...");
    case TypographySettings::Language::French:
        return QStringLiteral("\"L'\u00E9t\u00E9\" - 10 000 km ? Voir p. 7...");
    case TypographySettings::Language::Polish:
        return QStringLiteral("\"Mówi 'nie'\" - i w lesie, s. 7...");
    case TypographySettings::Language::Spanish:
        return QStringLiteral("\"Dijo 'no'\" - 1990-1995, 50 %...");
    default:
        return QStringLiteral("\"I don't\" -- 1990-1995, 5 km, 6'2\"...");
    }
}

QString caseSample(LanguageCaseSettings::Language language) {
    switch (language) {
    case LanguageCaseSettings::Language::Azerbaijani:
    case LanguageCaseSettings::Language::Turkish:
        return QStringLiteral("istanbul \u0131\u015F\u0131k, DI\u015EI \u0130Y\u0130");
    case LanguageCaseSettings::Language::Dutch:
        return QStringLiteral("ijsland en het IJSSELMEER");
    case LanguageCaseSettings::Language::Greek:
        return QStringLiteral(
            "\u038C\u03BC\u03B7\u03C1\u03BF\u03C2, \u039F\u0394\u03A5\u03A3\u03A3\u0395\u03A5\u03A3");
    case LanguageCaseSettings::Language::Lithuanian:
        return QStringLiteral("i\u0307\u0300 lietuva, VILNIUS");
    case LanguageCaseSettings::Language::Irish:
        return QStringLiteral("an t-uisce, ar an bhfear, T\u00EDR na n\u00D3g");
    case LanguageCaseSettings::Language::Any:
        break;
    }
    return QStringLiteral("stra\u00DFe zum CAF\u00C9, \uFB01nd \u01C6ep");
}

} // namespace

SettingsDialogPtr<TypographySettings> makeToolDialog(const TypographySettings &settings,
                                                     const ToolDialogContext &context) {
    const QList<FieldLook> looks = {
        {QStringLiteral("&Language:"),
         {QStringLiteral("English (British)"), QStringLiteral("English (American)"), QStringLiteral("German"),
          QStringLiteral("French"), QStringLiteral("Polish"), QStringLiteral("Spanish")}},
        {QStringLiteral("&No-break spaces where a line must not end")}};
    return std::make_unique<FieldDialog<TypographySettings>>(
        QStringLiteral("dlgTypography"), QStringLiteral("Typography"), looks, SampleLook{3},
        [](const TypographySettings &now) {
            const QString sample = typographySample(now.language);
            return ChosenLines{sample + u'\n' + typographic(sample, now), {}};
        },
        settings, context);
}

SettingsDialogPtr<LanguageCaseSettings> makeToolDialog(const LanguageCaseSettings &settings,
                                                       const ToolDialogContext &context) {
    const QList<FieldLook> looks = {
        {QStringLiteral("&Language:"),
         {QStringLiteral("Any other"), QStringLiteral("Azerbaijani"), QStringLiteral("Dutch"),
          QStringLiteral("Greek"), QStringLiteral("Lithuanian"), QStringLiteral("Turkish"),
          QStringLiteral("Irish")}},
        {QStringLiteral("&Change to:"),
         {QStringLiteral("UPPER CASE"), QStringLiteral("lower case"), QStringLiteral("Title Case")}}};
    return std::make_unique<FieldDialog<LanguageCaseSettings>>(
        QStringLiteral("dlgLanguageCase"), QStringLiteral("Case by Language"), looks, SampleLook{3},
        [](const LanguageCaseSettings &now) {
            const QString sample = caseSample(now.language);
            return ChosenLines{sample + u'\n' + caseByLanguage(sample, now), {}};
        },
        settings, context);
}

SettingsDialogPtr<ParagraphWrapSettings> makeToolDialog(const ParagraphWrapSettings &settings,
                                                        const ToolDialogContext &context) {
    const QList<FieldLook> looks = {{QStringLiteral("Page &width:"),
                                     {},
                                     {ParagraphWrapSettings::narrowest, ParagraphWrapSettings::widest}},
                                    {QStringLiteral("&Fill paragraphs: join their lines first")}};
    return std::make_unique<FieldDialog<ParagraphWrapSettings>>(
        QStringLiteral("dlgParagraphWrap"), QStringLiteral("Wrap Paragraphs"), looks, SampleLook{8, false},
        [](const ParagraphWrapSettings &now) {
            const QString sample = QStringLiteral(
                "> An answer from a letter, quoted with its marks as they came,\r\n"
                "> in lines that were broken at another width.\r\n"
                "- An item of a list, whose words stay under each other wherever it is broken\r\n"
                "// A comment of a program, which goes on as a comment on the next line");
            return ChosenLines{wrappedParagraphs(sample, now), {}};
        },
        settings, context);
}

} // namespace tolvo
