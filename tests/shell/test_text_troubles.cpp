// SPDX-License-Identifier: MIT
// What is said to be wrong with a text: what must be found, and what must not cry wolf.
#include "shell/text_troubles.h"
#include "tests/support/pictures.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

QString found(const QString &picture) {
    QStringList tokens;
    for (const Trouble &trouble : textTroubles(test::readPicture(picture).text))
        tokens += trouble.token;
    return tokens.join(u' ');
}

const QString wrapped = QStringLiteral("This is a paragraph that was copied from a file in which|"
                                       "every line ends with a hard break, and so it goes on and|"
                                       "on until somebody joins the lines of the whole paragraph|"
                                       "again. That is one click.");

TEST(TextTroubles, areFoundByTheToolThatMendsThem) {
    const std::pair<QString, const char *> rows[] = {
        {wrapped, "foPAR"},
        {QString(wrapped).replace(QStringLiteral("every"), QStringLiteral("Every")), "foPAR"},
        {"> one|>> two|three", "edSTR"},
        {"1 one|2 two|3 three|4 four", "liRLN"},
        {"  9\tone| 10\ttwo| 11| 12\tfour", "liRLN"},
        {"Tom &amp; Jerry", "edHDC"},
        {"it&#39;s", "edHDC"},
        {"https://example.org/a%20b%3Fc", "edUDC"},
        {"WE ARE WRITING TO TELL YOU THAT ALL OF IT IS READY", "ccSEN"},
        {"one\ntwo|three", "edEOL"},
        {"One.  Two.  Three.", "foSSP"},
        {"one||||two", "foREM"},
        {"one|||two|||three", "foREM"},
        {"1. one|2. two|3. three", "liREM"},
        {"Do this:|  7) one|more|  8) two|  9) three", "liREM"},
        {"\u2022 one|\u2022\ttwo|\u2022 three", "liRMB"},
        {"one  |two\u00A0|three", "foTRA"},
        {"\u201Cone\u201D", "edPLA"},
        // The most useful first, and no more than five.
        {"> a  b  c  |> \u201Cd\u201D &lt;  |||||end", "edSTR edHDC foSSP foREM foTRA"},
    };
    for (const auto &[picture, tokens] : rows)
        EXPECT_EQ(found(picture), tokens) << picture.toStdString();
}

TEST(TextTroubles, areNotSeenWhereTheTextIsMeantSo) {
    const QString rows[] = {
        "",
        "|||",
        "one  two",
        "Dear Ann,|thanks for your letter.",
        "> one line is no mail",
        "don\u2019t",
        "one||two||three",
        "1. one|2. two",
        "1999. That year|2004. This year|1987. Long ago",
        "12 apples|3 pears|40 plums|7 nuts",
        "<p>a &amp; b</p>",
        "See https://example.org/a%20b and https://example.org/c%20d.",
        "NASA, ESA",
        "Name   Age   City|Ann    31   Rome  |Bob    4    Paris",
        "int main() {|  int a = 1;  // one|  int b = 2;  // two|  return a  + b;|}",
        // Headlines and poems end their lines on purpose.
        QStringLiteral("The first of many headlines on the page|The second of many headlines here|") +
            "Another one that has a similar length|The last of all the headlines there",
        "roses are red|violets are blue|sugar is sweet|and so are you",
        // Paragraphs in one line each.
        QStringLiteral("word and ").repeated(30) + "so.|" + QStringLiteral("word and ").repeated(30) + "so.",
    };
    for (const QString &picture : rows)
        EXPECT_EQ(found(picture), "") << picture.toStdString();
}

TEST(TextTroubles, showTheirPlaces) {
    const std::pair<QString, QList<LinePart>> rows[] = {
        {"> one|>> two", {{0, 0, 2}, {1, 0, 3}}},
        {"a &lt; b|&gt;", {{0, 2, 4}, {1, 0, 4}}},
        {"One.  Two.  x", {{0, 4, 2}, {0, 10, 2}}},
        {"a||||b", {{2, 0, 0}, {3, 0, 0}}},
        {" 1. a| 2. b| 3. c", {{0, 1, 2}, {1, 1, 2}, {2, 1, 2}}},
        {wrapped, {{0, 51, 5}, {1, 53, 3}, {2, 47, 9}}},
    };
    for (const auto &[picture, places] : rows) {
        const QList<Trouble> troubles = textTroubles(test::readPicture(picture).text);
        ASSERT_EQ(troubles.size(), 1) << picture.toStdString();
        EXPECT_TRUE(troubles.front().places == places) << picture.toStdString();
    }
}

TEST(TextTroubles, endEarlyWhenCancelled) {
    Cancellation cancelled;
    cancelled.cancel();
    EXPECT_TRUE(textTroubles(QStringLiteral("a &lt; b"), cancelled).isEmpty());
}

} // namespace
