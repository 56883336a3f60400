// SPDX-License-Identifier: MIT
// The tools of lines by what has to hold for any text.
#include "base/case_folding.h"
#include "tests/support/print.h"
#include "text/column_choice.h"
#include "text/line_choice.h"
#include "text/line_list.h"
#include "text/line_order.h"
#include "text/line_parts.h"
#include "text/table_rows.h"
#include "text/tables.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;

namespace tolvo::test {

namespace {

using Order = SortLinesSettings::Order;

class LineTools : public ::testing::Test {
  protected:
    /// Up to 40 of these units, with line ends among them and at the end: an empty last line is a line then.
    QString text() {
        static const QStringList units = {
            u"a"_s,      u"A"_s,  u"é"_s, u"e\u0301"_s,           u"z"_s,  u"10"_s, u"9"_s,
            u"\u05D0"_s, u"中"_s, u"😀"_s, QString(QChar(0xD800)), u"\r"_s, u" "_s,  u"-"_s};
        QString text;
        for (int i = below(40); i > 0; --i)
            text += below(3) == 0 ? u"\r\n"_s : units.at(below(static_cast<int>(units.size())));
        return text + u"\r\n"_s;
    }
    int below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }

  private:
    std::mt19937 m_random{20261123};
};

QStringList linesOf(const QString &text) {
    QStringList lines;
    for (const QStringView line : LineList(text).lines)
        lines += line.toString();
    return lines;
}

QStringList inCodeOrder(const QString &text) {
    QStringList lines = linesOf(text);
    std::sort(lines.begin(), lines.end());
    return lines;
}

TEST_F(LineTools, sortEveryTextIntoAnOrderOfItsOwnLines) {
    for (int i = 0; i < 2000; ++i) {
        const QString given = text();
        SortLinesSettings settings{.order = static_cast<Order>(i % 4),
                                   .language = i % 8 > 3 ? u"sv"_s : QString()};
        settings.ignoreCase = i % 3 == 0;
        const QString sorted = sortedLines(given, settings);
        SCOPED_TRACE(shown(given));
        EXPECT_EQ(inCodeOrder(sorted), inCodeOrder(given)) << "the same lines";
        EXPECT_EQ(sortedLines(sorted, settings), sorted) << "in an order that stays";
        settings.unique = true;
        const QString unique = sortedLines(given, settings);
        settings.descending = true;
        QStringList down = linesOf(sortedLines(given, settings));
        std::reverse(down.begin(), down.end());
        EXPECT_EQ(down, linesOf(unique)) << "of lines that sort alike the first stays, up and down";
        settings.unique = false;
        EXPECT_EQ(linesOf(sortedLines(sortedLines(given, settings), settings)),
                  linesOf(sortedLines(given, settings)));
    }
}

TEST_F(LineTools, leaveOutWhatTheirReverseKeeps) {
    for (int i = 0; i < 500; ++i) {
        const QString given = text();
        SCOPED_TRACE(shown(given));
        EveryLineSettings every{false, 1 + below(4), 1 + below(4)};
        QStringList both = linesOf(everyLine(given, every));
        every.drop = true;
        both += linesOf(everyLine(given, every));
        both.sort();
        EXPECT_EQ(both, inCodeOrder(given));
        EXPECT_EQ(withWordsReversed(withWordsReversed(given)), given);
        const QString once = withoutDuplicates(given, {});
        EXPECT_EQ(withoutDuplicates(once, {}), once);
        const SeparatorSettings joining{true, u"; "_s, false, false};
        const QString joined = splitOrJoined(given, joining);
        EXPECT_EQ(splitOrJoined(joined, {false, u"; "_s, false, false}), given)
            << "no line holds the separator";
    }
}

TEST(TableRows, areLinesUnlessQuotedCellsRunOverTheirEnds) {
    const struct {
        QString text; ///< "|" is a line end, "¦" a bar
        QString sign;
        QStringList rows;
    } cases[] = {
        {u"id,note|1,\"a|b\"|2,c"_s, u","_s, {u"id,note"_s, u"1,\"a|b\""_s, u"2,c"_s}},
        {u"1;\"a, b||c, d, \"\"e|\";2|"_s, u";"_s, {u"1;\"a, b||c, d, \"\"e|\";2"_s, {}}},
        {u"1,\"a; b|c; d\""_s, u","_s, {u"1,\"a; b|c; d\""_s}},
        {u"name,address|Ann,\"1 Main St|Leeds, UK\""_s,
         u","_s,
         {u"name,address"_s, u"Ann,\"1 Main St|Leeds, UK\""_s}},
        {u"\"a\tb|c\"\td|\"e\"\tf"_s, u"\t"_s, {u"\"a\tb|c\"\td"_s, u"\"e\"\tf"_s}},
        // quotes that are not closed, or not at the ends of their cells
        {u"a,\"b|c,d|e,f"_s, u","_s, {u"a,\"b"_s, u"c,d"_s, u"e,f"_s}},
        {u"rod,5\"|tube,3\"|\"nut\",\"|x,y"_s,
         u","_s,
         {u"rod,5\""_s, u"tube,3\""_s, u"\"nut\",\""_s, u"x,y"_s}},
        {u"a,b,c|d,\"e,f|g,h,i|j,k\",l,m|n,o,p"_s,
         u","_s,
         {u"a,b,c"_s, u"d,\"e,f"_s, u"g,h,i"_s, u"j,k\",l,m"_s, u"n,o,p"_s}},
        // prose
        {u"He said, \"I will go,|and you stay,|as well.\"|She left, and he didn't."_s,
         u","_s,
         {u"He said, \"I will go,"_s, u"and you stay,"_s, u"as well.\""_s, u"She left, and he didn't."_s}},
        {u"\"I am here,|and there.\"||'Tis 5\" long."_s,
         u","_s,
         {u"\"I am here,"_s, u"and there.\""_s, {}, u"'Tis 5\" long."_s}},
        {u"\"\"\"|Notes.|\"\"\"|import a, b|from c import d, e"_s,
         u","_s,
         {u"\"\"\""_s, u"Notes."_s, u"\"\"\""_s, u"import a, b"_s, u"from c import d, e"_s}},
        {u"\"Here|and there.\"|End"_s, u"\t"_s, {u"\"Here"_s, u"and there.\""_s, u"End"_s}},
        {u"¦ x ¦ ,\"a ¦|¦---¦---¦|¦ b\", ¦ y ¦"_s,
         u"¦"_s,
         {u"¦ x ¦ ,\"a ¦"_s, u"¦---¦---¦"_s, u"¦ b\", ¦ y ¦"_s}},
    };
    for (const auto &[picture, sign, pictures] : cases) {
        const auto meant = [](QString text) { return text.replace(u'|', u"\r\n"_s).replace(u'¦', u'|'); };
        const QString text = meant(picture);
        const TableRows table = tableRows(text);
        EXPECT_EQ(table.parting->sign, meant(sign)) << shown(text);
        QStringList rows;
        for (const QString &row : pictures)
            rows += meant(row);
        EXPECT_EQ(table.rows, QList<QStringView>(rows.begin(), rows.end())) << shown(text);
    }
}

TEST(Columns, keepTheLinesOfTheirCellsInMarkdown) {
    const QString csv = u"tag,means\r\n`<br>`,\"a <BR/>,\r\n&lt;br>\""_s;
    const QString markdown = u"| tag | means |\r\n| --- | --- |\r\n| `<br>` | a &lt;BR/>,<br>&amp;lt;br> |"_s;
    EXPECT_EQ(markdownTable(csv), markdown);
    EXPECT_EQ(csvTable(markdown), csv);
    EXPECT_EQ(csvTable(u"a|b<br>c\r\nd|e"_s), u"a,b<br>c\r\nd,e"_s) << "bars alone are not Markdown";
}

TEST(Columns, areChosenFromMarkdown) {
    const QString rows[][3] = {
        {u"2,1"_s, u"|a\\|b|c|\n|:--|---|\n|1|2|"_s, u"|c|a\\|b|\n|---|:--|\n|2|1|"_s},
        {u"1,4"_s, u"| a  | b |\n| -- | --- |\n|    | 2 |"_s, u"| a |  |\n| -- |  |\n|  |  |"_s},
        {u"2,3"_s, u"| a | b |\n| :--- | --- |\n| Q-1 | 9-1 |\n|---|---|"_s,
         u"| b |  |\n| --- | --- |\n| 9-1 |  |\n| --- |  |"_s},
        {u"1,4"_s, u"| a | b |\n|---|:---:|"_s, u"| a |  |\n| --- | --- |"_s},
        {u"1,3"_s, u"a | b"_s, u"|a | |"_s},
    };
    for (const auto &[columns, text, chosen] : rows) {
        QString picture = text;
        const ChosenLines result = chosenColumns(picture.replace(u'\n', u"\r\n"_s), {.columns = columns});
        EXPECT_EQ(QString(result.text).remove(u'\r'), chosen) << shown(text);
    }
}

TEST(CaseFolding, isFull) {
    const std::pair<QString, QString> rows[] = {{{}, {}},
                                                {u"Straße ẞ"_s, u"strasse ss"_s},
                                                {u"ΣΑΣ σας"_s, u"σασ σασ"_s},
                                                {u"ﬃ"_s, u"ffi"_s},
                                                {u"𐐀"_s, u"𐐨"_s},
                                                {QString(QChar(0xD801)), QString(QChar(0xD801))}};
    for (const auto &[text, folded] : rows)
        EXPECT_EQ(caseFolded(text), folded);
}

} // namespace

} // namespace tolvo::test
