// SPDX-License-Identifier: MIT
#include "tests/search/search_world.h"

namespace tolvo::test {

namespace {

class RegExpSearch : public SearchWorld {};

TEST_F(RegExpSearch, AnEscapedBackslashBeforeNIsWidenedToo) {
    box.setText("\\n \\r\n"); // the pattern then means backslash, r, line feed
    search.RegExpSearch(box.Text(), "\\\\n", false, true, true);
    EXPECT_EQ(box.SelStart(), 3);
}

TEST_F(RegExpSearch, ReplacesAll) {
    box.setText(QChar(0xD800));
    search.RegExpReplaceAll("\\uD800", "x", false, false, false);
    EXPECT_EQ(box.Text(), "x");
    EXPECT_EQ(said(), "1 string replaced");
    // The box is written without a match too, and a match is replaced within itself.
    box.setText("a\nb");
    search.RegExpReplaceAll("x", "y", false, false, true);
    EXPECT_EQ(box.Text(), "a\r\nb");
    show("«abc»");
    search.RegExpReplace(".*", "X", false, true, false, false, true);
    EXPECT_EQ(picture(), "«XX»");
    EXPECT_EQ(said(), "");
}

TEST_F(RegExpSearch, ListsAllMatches) {
    show("one|two  and a match|match at the start");
    QString text = box.Text();
    EXPECT_EQ(search.RegExpFindAll(text, "match|^", false), 2);
    EXPECT_EQ(text, "one\ntwo  and a match\nmatch at the start");
    EXPECT_EQ(list.lines, QStringList({"Line 2: two  and a match", "Line 3: match at the start"}));
    EXPECT_EQ(list.locations, QList<qint32>({160005, 230005}));
    EXPECT_EQ(search.RegExpFindAll(text, "nowhere", false), 0);
    EXPECT_EQ(list.lines.size(), 2);
    EXPECT_EQ(search.RegExpFindAll(text, "[", false), 0);
    EXPECT_TRUE(said().contains("(error 5018)\r\n in CSearch::RegExpFindAll"));
    search.RegExpReplaceAll("a**", "", false, false, false);
    EXPECT_TRUE(said().contains("(error 5018)\r\n in CSearch::RegExpReplaceAll"));
}

/// A visitor that looks at each match with the same expression again.
TEST_F(RegExpSearch, AWalkMayBeNested) {
    const RegularExpression expression(u"([a-z])(\\d)?", true);
    MatchBudget budget;
    QStringList seen;
    expression.forEachMatch(u"a1b--c", budget, [&](const RegularExpressionMatch &outer) {
        expression.forEachMatch(u"x y2", budget, [&](const RegularExpressionMatch &inner) {
            seen += outer.group(0).toString() + inner.group(0).toString();
            return true;
        });
        seen += QStringLiteral("%1 %2,%3").arg(outer.start()).arg(outer.group(1), outer.group(2));
        return true;
    });
    EXPECT_EQ(seen.join(u'|'), "a1x|a1y2|0 a,1|bx|by2|2 b,|cx|cy2|5 c,");
}

TEST_F(RegExpSearch, EndlessSearchesEndWithAReport) {
    const QString text = QString(60000, u'a') + u'b';
    const struct {
        QString pattern;
        const char *reason;
        std::chrono::milliseconds limit = MatchBudget::usualTime;
        bool isImpatient = false;
    } rows[] = {
        {"(a+)+$", "needs too much work"},
        {"(?:a?){40}a{40}$", "needs too much work"},
        {QString(70000, u'(') + QString(70000, u')'), "is too large"},
        {"(?:aa?){18}(?!a|b)", "took too long", std::chrono::milliseconds(20)},
        {"(?:aa?){18}(?!a|b)", "was interrupted", MatchBudget::usualTime, true},
    };
    const std::pair<const char *, std::function<void(const QString &)>> operations[] = {
        {"RegExpSearch", [&](const QString &p) { search.RegExpSearch(text, p, false, true, true); }},
        {"RegExpFindAll",
         [&](const QString &p) {
             QString searched = text;
             search.RegExpFindAll(searched, p, true);
         }},
        {"RegExpReplace",
         [&](const QString &p) { search.RegExpReplace(p, "x", false, true, true, false, true); }},
        {"RegExpReplaceAll", [&](const QString &p) { search.RegExpReplaceAll(p, "x", true, false, false); }},
    };
    box.setText(text);
    for (const auto &row : rows) {
        search.setTimeLimit(row.limit);
        isImpatient = row.isImpatient;
        for (const auto &[name, run] : operations) {
            run(row.pattern);
            const QString report = said();
            EXPECT_TRUE(report.contains(row.reason)) << name << shown(report);
            EXPECT_TRUE(report.endsWith(QString("(error 5020)\r\n in CSearch::") + name)) << shown(report);
            EXPECT_EQ(box.Text(), text);
        }
    }
    isImpatient = false;
    // A word of any length is one word, and no endless search.
    search.WildcardReplaceAll("@,", "x", false, true, false, {}, false);
    EXPECT_EQ(said(), "0 strings replaced");
}

/// The same search in all three modes.
TEST_F(RegExpSearch, WildcardsAndLiteralTextFindTheSame) {
    for (const char mode : {'s', 'w', 'r'}) {
        SCOPED_TRACE(mode);
        bool fromStart = true;
        show("no|a1 «»A1|a1");
        if (mode == 's')
            search.SimpleSearch("a1", false, false, false, fromStart, false, false);
        else if (mode == 'w')
            search.WildcardSearch("a1", false, false, fromStart, false, {});
        else
            search.RegExpSearch(box.Text(), "a1", false, fromStart, false);
        EXPECT_EQ(picture(), "no|«a1» A1|a1");
        QString text = box.Text();
        if (mode == 's')
            search.SimpleFindAll("a1", false, false, true);
        else if (mode == 'w')
            EXPECT_EQ(search.WildcardFindAll("a1", false, false, {.wholeWords = true}), 3);
        else
            EXPECT_EQ(search.RegExpFindAll(text, "\\ba1\\b", false), 3);
        EXPECT_EQ(list.locations, QList<qint32>({40002, 70002, 110002}));
        if (mode == 's')
            search.SimpleReplaceAll("a1", "bc", false, false, false, true, false);
        else if (mode == 'w')
            search.WildcardReplaceAll("a%", "bc", false, false, true, {}, false);
        else
            search.RegExpReplaceAll("a\\d", "bc", false, true, false);
        EXPECT_EQ(picture(), "«»no|bc Bc|bc");
        EXPECT_EQ(said(), "3 strings replaced");
    }
    show("«»Smith, John");
    search.WildcardReplace("@, @", "$2 $1", false, false, false, true, false, {}, true);
    EXPECT_EQ(picture(), "«John Smith»");
    search.WildcardSearch("[x", false, false, false, true, {});
    EXPECT_TRUE(said().startsWith("Closing square bracket ] missing."));
}

} // namespace

} // namespace tolvo::test
