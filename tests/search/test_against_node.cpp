// SPDX-License-Identifier: MIT
// Our regular expressions beside those of an ECMAScript engine: generated patterns on generated texts, all
// matches with their groups. Left out is where the two may differ: groups that a repeat goes through more
// than once keep their last text here; k, s and sharp s have more forms without regard to case.
#include "search/regular_expression.h"
#include "tests/search/pattern_generator.h"
#include "tests/support/commands.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace tolvo::test {

namespace {

PatternWords words() {
    return {.letters = QStringLiteral("aab.1"),
            .atoms = {"a",     "b",   "A",   "B",      "c",    "1",   ".",     "\\d",     "\\D",     "\\w",
                      "\\W",   "\\s", "\\S", "\\n",    "\\r",  "\\t", "\\x41", "\\u0436", "\\u00e9", "\\x4",
                      "\\u12", "\\-", "\\.", "\\cI",   "\\c",  "\\0", "\\101", "\\v",     "\\8",     "-",
                      "]",     "}",   "{",   "{a",     "a{,2", " ",   "_",     "\\e",     "\\Q",     "\\z",
                      "\\p",   "\\R", "é",   "\u0416", "[]",   "[^]", "#",     "\\k",     "\\G",     "\\h"},
            .members = {"a",        "b",   "a-c",  "A-Z",         "0-9",   "\\d",   "\\w", "\\W",
                        "\\s",      "\\S", "\\D",  "-",           "\\b",   "\\n",   "\\r", "[",
                        "[:alpha:", "\\]", "\\\\", "\\x41-\\x43", "\\w-a", "a-\\d", "^",   "\\u0416",
                        "é",        "\\1", "\\cI", "\\c",         "\\B",   "."},
            .textUnits = QStringLiteral("aaabbbcAB_ -0123\té\u00A0\u0416\u0436.\\{[]")};
}

QJsonValue ourMatches(const QString &pattern, bool matchCase, const QString &text) {
    const RegularExpression expression(pattern, matchCase);
    if (!expression.isValid())
        return QStringLiteral("invalid");
    QJsonArray matches;
    MatchBudget budget;
    expression.forEachMatch(text, budget, [&](const RegularExpressionMatch &match) {
        QJsonArray one{match.start(), match.length()};
        for (int i = 1; i <= expression.groups(); ++i)
            one.append(match.group(i).toString());
        matches.append(one);
        return true;
    });
    return matches;
}

TEST(AgainstNode, FindsTheSameMatches) {
    if (!isInstalled("node"))
        GTEST_SKIP() << "node is not installed";
    PatternGenerator generator(words(), 20240611);
    QJsonArray cases;
    for (int i = 0; i < 6000; ++i) {
        const QString pattern = i % 4 == 0 ? generator.soup() : generator.pattern();
        cases.append(QJsonArray{pattern, generator.oneIn(2) ? "gm" : "gmi", generator.text()});
    }
    const QString script = qEnvironmentVariable("TOLVO_SOURCE") + "/tests/search/against_node.js";
    const QJsonArray answers =
        QJsonDocument::fromJson(outputOf("node", {script}, QJsonDocument(cases).toJson())).array();
    ASSERT_EQ(answers.size(), cases.size());
    int withMatches = 0;
    int invalid = 0;
    for (qsizetype i = 0; i < cases.size(); ++i) {
        const QJsonArray one = cases[i].toArray();
        const QJsonValue ours =
            ourMatches(one[0].toString(), one[1].toString() == QStringLiteral("gm"), one[2].toString());
        EXPECT_EQ(QJsonDocument(QJsonArray{ours}).toJson(QJsonDocument::Compact).toStdString(),
                  QJsonDocument(QJsonArray{answers[i]}).toJson(QJsonDocument::Compact).toStdString())
            << QJsonDocument(one).toJson(QJsonDocument::Compact).toStdString();
        withMatches += answers[i].toArray().isEmpty() ? 0 : 1;
        invalid += answers[i].isString() ? 1 : 0;
    }
    // The ground is worth something only if it is not all misses and nonsense.
    EXPECT_GT(withMatches, 1200);
    EXPECT_GT(invalid, 200);
}

} // namespace

} // namespace tolvo::test
