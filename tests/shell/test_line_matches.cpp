// SPDX-License-Identifier: MIT
#include "shell/line_matches.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

/// The parts that are found, with a bar before each.
QString parts(const QString &line, const QList<LineMatch> &found) {
    QString text;
    for (const LineMatch &match : found)
        text += u'|' + line.sliced(match.column, match.length);
    return text;
}

TEST(LineMatches, areFoundWhereThePatternEnds) {
    using Find = QList<LineMatch> (*)(QStringView);
    const Find number = [](QStringView line) { return leadingNumber(line, 6, {}); };
    const Find listNumber = [](QStringView line) { return leadingNumber(line, 3, u".)"); };
    const Find bullet = [](QStringView line) { return leadingSign(line, u"\u2022"); };
    const struct {
        Find find;
        QString line;
        QString parts;
    } rows[] = {
        {quoteMarks, "> > one > two", "|> > "},
        {quoteMarks, ">", "|>"},
        {quoteMarks, " > one", ""},
        {number, " \t12 apples", "|12"},
        {number, "123456", "|123456"},
        {number, "1234567", ""},
        {number, "12a", ""},
        {number, "", ""},
        {listNumber, "  12) two", "|12)"},
        {listNumber, "12.", ""},
        {listNumber, "1234. no", ""},
        {listNumber, "12", ""},
        {listNumber, ". a", ""},
        {bullet, " \u2022\tone", "|\u2022"},
        {bullet, "\u2022one", ""},
        {bullet, "   ", ""},
        {characterReferences, "&amp;&lt; &frac12;", "|&amp;|&lt;|&frac12;"},
        {characterReferences, "&#39; &#x20AC; &#X41;", "|&#39;|&#x20AC;|&#X41;"},
        {characterReferences, "&#; &#x; &#12345678; &a; &abcdefghi; &amp", ""},
        {characterReferences, "&&amp;", "|&amp;"},
        {percentCodes, "a%20b%3f%%41%4", "|%20|%3f|%41"},
        {innerBlanks, "a  b   c d", "|  |   "},
        {innerBlanks, "  a\t  b  \tc  ", ""},
        {blanksAtEnd, "one \t\u00A0", "| \t\u00A0"},
        {blanksAtEnd, "one", ""},
        {blanksAtEnd, "   ", ""},
    };
    for (const auto &row : rows)
        EXPECT_EQ(parts(row.line, row.find(row.line)), row.parts) << row.line.toStdString();
}

TEST(LineMatches, knowWhereTagsEnd) {
    for (const char16_t *line : {u"</p>", u"a</b", u"<br/>"})
        EXPECT_TRUE(hasClosingTag(line)) << QString::fromUtf16(line).toStdString();
    for (const char16_t *line : {u"", u"/", u"</", u"</1", u"a/b", u"<p>"})
        EXPECT_FALSE(hasClosingTag(line)) << QString::fromUtf16(line).toStdString();
}

} // namespace
