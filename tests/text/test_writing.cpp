// SPDX-License-Identifier: MIT
// The rows of writing_examples.txt, which says what they are, and laws that hold for any text.
#include "tests/support/examples.h"
#include "tests/support/failures.h"
#include "text/finding.h"
#include "text/language_case.h"
#include "text/notation.h"
#include "text/page_text.h"
#include "text/reflow.h"
#include "text/typography.h"

#include <map>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

/// A tool that takes the text alone.
using Plain = QString (*)(QStringView);
/// A tool that takes the numbers of its settings besides.
using Set = QString (*)(QStringView, int, int);

const std::map<QString, Plain> plainTools = {{u"straightSigns"_s, straightSigns},
                                             {u"unwrappedParagraphs"_s, unwrappedParagraphs},
                                             {u"joinedPdfLines"_s, joinedPdfLines},
                                             {u"htmlAsText"_s, htmlAsText},
                                             {u"markdownAsText"_s, markdownAsText},
                                             {u"htmlNamed"_s, htmlNamed},
                                             {u"quotedPrintableEncoded"_s, quotedPrintableEncoded},
                                             {u"cEscaped"_s, cEscaped},
                                             {u"shellQuoted"_s, shellQuoted},
                                             {u"xmlEscaped"_s, xmlEscaped},
                                             {u"csvQuoted"_s, csvQuoted}};

const std::map<QString, DecodedText (*)(QStringView)> decoders = {
    {u"htmlReferencesDecoded"_s, htmlReferencesDecoded},
    {u"quotedPrintableDecoded"_s, quotedPrintableDecoded},
    {u"cUnescaped"_s, cUnescaped},
    {u"shellUnquoted"_s, shellUnquoted},
    {u"xmlUnescaped"_s, xmlUnescaped},
    {u"csvUnquoted"_s, csvUnquoted}};

const std::map<QString, QStringList (*)(QStringView)> finders = {{u"webAddresses"_s, webAddresses},
                                                                 {u"mailAddresses"_s, mailAddresses},
                                                                 {u"numbersIn"_s, numbersIn},
                                                                 {u"datesIn"_s, datesIn}};

const std::map<QString, Set> setTools = {
    {u"typographic"_s,
     [](QStringView text, int language, int blanks) {
         return typographic(text, {TypographySettings::Language{language}, blanks != 0});
     }},
    {u"caseByLanguage"_s,
     [](QStringView text, int language, int kind) {
         return caseByLanguage(text,
                               {LanguageCaseSettings::Language{language}, LanguageCaseSettings::Kind{kind}});
     }},
    {u"wrappedParagraphs"_s, [](QStringView text, int width, int fill) {
         return wrappedParagraphs(text, {width, fill != 0});
     }}};

TEST(Writing, comesOutAsTheFileSays) {
    forEachExample("/tests/text/writing_examples.txt", [](const QString &tool, QStringList sides) {
        for (QString &side : sides)
            side.replace(u'|', u"\r\n"_s).replace(u'¦', u'|').replace(u'^', u'\u202F');
        if (const auto plain = plainTools.find(tool); plain != plainTools.end()) {
            EXPECT_EQ(plain->second(sides[0]), sides[1]);
            return;
        }
        if (const auto decoder = decoders.find(tool); decoder != decoders.end()) {
            const DecodedText decoded = decoder->second(sides[0]);
            EXPECT_EQ(decoded.text, sides[1]);
            EXPECT_EQ(decoded.badAt, sides[2].isEmpty() ? -1 : sides[2].toInt());
            return;
        }
        if (const auto finder = finders.find(tool); finder != finders.end()) {
            EXPECT_EQ(finder->second(sides[0]).join(u" ; "), sides[1]);
            return;
        }
        const QStringList settings = sides[0].section(u':', 0, 0).split(u' ');
        EXPECT_EQ(setTools.at(tool)(sides[0].section(u": "_s, 1), settings[0].toInt(), settings[1].toInt()),
                  sides[1]);
    });
}

TEST(Writing, setTwiceIsSetOnce) {
    const QString text = u"\"He said 'don't'\" -- in 1990-1995, 5 km: \"a 'b' c\"! 10 000 \u20AC..."_s;
    for (int language = 0; language < static_cast<int>(TypographySettings::words.size()); ++language) {
        const TypographySettings settings{TypographySettings::Language{language}, true};
        const QString once = typographic(text, settings);
        EXPECT_EQ(typographic(once, settings), once);
        EXPECT_EQ(straightSigns(typographic(straightSigns(text), settings)), straightSigns(once));
    }
}

} // namespace
