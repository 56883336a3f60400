// SPDX-License-Identifier: MIT
// What holds for the tools for writing whatever the text: random texts of the units that their rules look at.
#include "tests/support/examples.h"
#include "tests/support/print.h"
#include "text/finding.h"
#include "text/marked_lines.h"
#include "text/notation.h"
#include "text/page_text.h"
#include "text/reflow.h"
#include "text/typography.h"

#include <random>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

class WritingLaws : public ::testing::Test {
  protected:
    /// Up to 40 of the units; "|" is a line end.
    QString textOf(const QStringList &units) {
        QString text;
        for (auto count = m_random() % 40; count > 0; --count)
            text += units.at(static_cast<qsizetype>(m_random() % static_cast<unsigned>(units.size())));
        return text.replace(u'|', u"\r\n"_s);
    }

    /// Calls with many random texts of the units.
    template <class Check>
    void forTexts(const QStringList &units, Check check) {
        for (int i = 0; i < 1000 && !HasFailure(); ++i) {
            const QString text = textOf(units);
            SCOPED_TRACE(shown(text));
            check(text);
        }
    }

  private:
    std::mt19937 m_random{20261123};
};

const QStringList anyUnits = {u"a"_s,      u"B"_s,  u"1"_s,  u" "_s,  u"|"_s,      u"é"_s,
                              u"\u0301"_s, u"😀"_s,  u"中"_s, u"&"_s,  u"<"_s,      u"\""_s,
                              u"'"_s,      u"\\"_s, u"\t"_s, u"\r"_s, u"\n"_s,     u"\a"_s,
                              u";"_s,      u"#"_s,  u"$'"_s, u","_s,  u"\u202E"_s, QString(QChar(0xD800))};

TEST_F(WritingLaws, codesComeBack) {
    using Encoder = QString (*)(QStringView);
    using Decoder = DecodedText (*)(QStringView);
    const std::pair<Encoder, Decoder> pairs[] = {{htmlNamed, htmlReferencesDecoded},
                                                 {shellQuoted, shellUnquoted},
                                                 {xmlEscaped, xmlUnescaped},
                                                 {csvQuoted, csvUnquoted},
                                                 {cEscaped, cUnescaped},
                                                 {quotedPrintableEncoded, quotedPrintableDecoded}};
    forTexts(anyUnits, [&](const QString &text) {
        for (const auto &[encode, decode] : pairs) {
            QString wanted = text;
            if (encode == quotedPrintableEncoded)
                wanted.replace(QChar(0xD800), u'?'); // UTF-8 has no half of a pair
            if (encode == csvQuoted && text.contains(u'"'))
                continue; // an unquoted cell may have begun with a quote
            const DecodedText decoded = decode(encode(text));
            if (encode == cEscaped) // where a lone line feed is a line end too
                continue;
            EXPECT_EQ(shown(decoded.text), shown(wanted));
            EXPECT_EQ(decoded.bad, 0);
        }
    });
}

TEST_F(WritingLaws, typographyKeepsTheWords) {
    const QStringList units = {u"a"_s, u"Be"_s,     u"12"_s, u" "_s,   u"|"_s,  u"\""_s,
                               u"'"_s, u"-"_s,      u"--"_s, u"..."_s, u"«"_s,  u"»"_s,
                               u"„"_s, u"\u00A0"_s, u"?"_s,  u":"_s,   u"km"_s, u"%"_s};
    const auto wordsOf = [](const QString &text) {
        QString words;
        for (const QChar c : text)
            words += c.isLetterOrNumber() ? c : QChar();
        return words.remove(QChar());
    };
    forTexts(units, [&](const QString &text) {
        for (int language = 0; language < static_cast<int>(TypographySettings::words.size()); ++language) {
            const QString set = typographic(text, {TypographySettings::Language{language}, true});
            EXPECT_EQ(wordsOf(set), wordsOf(text));
            EXPECT_EQ(set.count(u"\r\n"_s), text.count(u"\r\n"_s));
            EXPECT_FALSE(set.contains(u'"'));
        }
        for (const QChar c : straightSigns(text))
            EXPECT_LT(c.unicode(), 0x80);
    });
}

TEST_F(WritingLaws, paragraphsKeepTheirWords) {
    const QStringList units = {u"a"_s,  u"word"_s,   u" "_s,  u" "_s,   u"  "_s,
                               u"|"_s,  u"> "_s,     u"- "_s, u"1. "_s, u"// "_s,
                               u"\t"_s, u"中文字"_s, u"。"_s, u"😀"_s,   u"averylongword"_s};
    const auto unmarked = [](QString text) {
        for (const QChar mark : u" \r\n\t>-/"_s)
            text.remove(mark);
        return text;
    };
    forTexts(units, [&](const QString &text) {
        const QString wrapped = wrappedParagraphs(text, {12, false});
        EXPECT_EQ(unmarked(wrapped), unmarked(text));
        EXPECT_EQ(wrappedParagraphs(wrapped, {1000, false}), wrapped);
        EXPECT_EQ(unmarked(unwrappedParagraphs(text)), unmarked(text));
        EXPECT_EQ(unmarked(joinedPdfLines(text)), unmarked(text));
        for (const QString &line : wrapped.split(u"\r\n"_s)) {
            const MarkedLine marked = markedLine(line);
            const bool oneWord = !marked.words.contains(u' ') && !marked.words.contains(u'\t');
            EXPECT_TRUE(columnsOf(line) <= 12 || oneWord || marked.isBlank()) << shown(line);
        }
    });
}

TEST_F(WritingLaws, pagesAreReadToTheirEnd) {
    const QStringList units = {
        u"<p>"_s,     u"</p>"_s,     u"<li>"_s,      u"<ul>"_s, u"</ul>"_s,   u"<td>"_s, u"<tr>"_s,
        u"<table>"_s, u"</table>"_s, u"<a href='"_s, u"'>"_s,   u"</a>"_s,    u"<!--"_s, u"-->"_s,
        u"<pre>"_s,   u"|"_s,        u"<"_s,         u">"_s,    u"*"_s,       u"_"_s,    u"`"_s,
        u"["_s,       u"]("_s,       u")"_s,         u"```|"_s, u"| --- |"_s, u"# "_s,   u"<blockquote>"_s,
        u" "_s,       u"a"_s,        u"]: b|"_s};
    forTexts(units, [](const QString &text) {
        const QString end = u"\r\n\r\nlast words"_s;
        EXPECT_TRUE(htmlAsText(text + u"-->'></table></table><p>"_s + end).endsWith(u"last words"));
        EXPECT_TRUE(markdownAsText(text + end).endsWith(u"last words"));
    });
    for (const QString &plain : {u"Some words, 2 < 3 & more.|And a line."_s, u"- a|- b"_s, u"1. a||b"_s})
        EXPECT_EQ(markdownAsText(QString(plain).replace(u'|', u"\r\n"_s)),
                  QString(plain).replace(u'|', u"\r\n"_s));
}

TEST_F(WritingLaws, findsStandInTheText) {
    const QStringList units = {u"a"_s,
                               u"@"_s,
                               u"."_s,
                               u"b.c"_s,
                               u"://"_s,
                               u"www."_s,
                               u"12"_s,
                               u"-"_s,
                               u"/"_s,
                               u" "_s,
                               u","_s,
                               u"("_s,
                               u")"_s,
                               u" May "_s,
                               u"2026"_s,
                               u"|"_s,
                               QString(QChar(0xDC00))};
    forTexts(units, [](const QString &text) {
        for (auto find : {webAddresses, mailAddresses, numbersIn, datesIn}) {
            qsizetype from = 0;
            for (const QString &found : find(text)) {
                const qsizetype at = text.indexOf(found, from);
                EXPECT_GE(at, 0) << shown(found);
                from = at + found.size();
            }
        }
    });
}

} // namespace
