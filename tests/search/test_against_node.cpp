// SPDX-License-Identifier: MIT
// Our regular expressions beside those of an ECMAScript engine: generated patterns on generated texts, all
// matches with their groups. Left out is where the two may differ: groups that a repeat goes through more
// than once keep their last text here; k, s and sharp s have more forms without regard to case.
#include "search/regular_expression.h"
#include "tests/support/commands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <random>

namespace tolvo::test {

namespace {

class Generator {
  public:
    QString pattern() {
        m_groups = 0;
        return alternatives(3);
    }

    /// Characters in any order: mostly nonsense, often no pattern at all.
    QString soup() {
        static const QString units = QStringLiteral("ab(((:)))[[]]{{}}**++??\\\\\\^$.-,12dwBcx0A|");
        for (;;) {
            QString result = drawn(units, 1 + below(9));
            if (!result.contains(QStringLiteral("(?<")) && !hasReference(result))
                return result;
        }
    }

    QString text() {
        static const QString units = QStringLiteral("aaabbbcAB_ -0123\té\u00A0\u0416\u0436.\\{[]");
        QString result;
        for (int i = below(24); i > 0; --i)
            result += oneIn(6) ? QString(oneIn(2) ? "\r\n" : oneIn(2) ? "\n" : "\r") : drawn(units, 1);
        return result;
    }

    bool oneIn(int n) { return below(n) == 0; }

  private:
    int below(int n) { return static_cast<int>(m_random() % static_cast<unsigned>(n)); }
    QString drawn(const QString &units, int count) {
        QString result;
        for (; count > 0; --count)
            result += units[below(static_cast<int>(units.size()))];
        return result;
    }
    static bool hasReference(const QString &pattern) {
        for (qsizetype i = 0; i + 1 < pattern.size(); ++i) {
            if (pattern[i] == u'\\' && pattern[i + 1] > u'0' && pattern[i + 1] <= u'9')
                return true;
        }
        return false;
    }

    QString alternatives(int depth) {
        QString result = sequence(depth);
        while (oneIn(4))
            result += u'|' + sequence(depth);
        return result;
    }

    QString sequence(int depth) {
        QString result;
        for (int i = below(4); i >= 0; --i)
            result += term(depth);
        return result;
    }

    QString term(int depth) {
        static const QStringList assertions = {"^", "$", "\\b", "\\B"};
        if (oneIn(8))
            return assertions[below(4)];
        if (depth > 0 && oneIn(10))
            return (oneIn(2) ? "(?=" : "(?!") + alternatives(depth - 1) + u')';
        // What is repeated is never empty: the engines differ in when they stop.
        if (depth > 0 && oneIn(6))
            return "(?:" + atom() + sequence(0) + u')' + quantifier();
        if (depth > 0 && oneIn(4)) {
            const bool captures = oneIn(2);
            m_groups += captures ? 1 : 0;
            return (captures ? "(" : "(?:") + alternatives(depth - 1) + u')';
        }
        if (m_groups > 0 && oneIn(6))
            return u'\\' + QString::number(1 + below(m_groups));
        return atom() + quantifier();
    }

    QString atom() {
        static const QStringList atoms = {
            "a",     "b",   "A",   "B",      "c",    "1",   ".",     "\\d",     "\\D",     "\\w",
            "\\W",   "\\s", "\\S", "\\n",    "\\r",  "\\t", "\\x41", "\\u0436", "\\u00e9", "\\x4",
            "\\u12", "\\-", "\\.", "\\cI",   "\\c",  "\\0", "\\101", "\\v",     "\\8",     "-",
            "]",     "}",   "{",   "{a",     "a{,2", " ",   "_",     "\\e",     "\\Q",     "\\z",
            "\\p",   "\\R", "é",   "\u0416", "[]",   "[^]", "#",     "\\k",     "\\G",     "\\h"};
        if (oneIn(3))
            return drawn(QStringLiteral("aab.1"), 1);
        return oneIn(3) ? set() : atoms[below(static_cast<int>(atoms.size()))];
    }

    QString set() {
        static const QStringList members = {
            "a",     "b",     "a-c", "A-Z",     "0-9", "\\d", "\\w",      "\\W", "\\s",  "\\S",
            "\\D",   "-",     "\\b", "\\n",     "\\r", "[",   "[:alpha:", "\\]", "\\\\", "\\x41-\\x43",
            "\\w-a", "a-\\d", "^",   "\\u0416", "é",   "\\1", "\\cI",     "\\c", "\\B",  "."};
        QString result = oneIn(3) ? "[^" : "[";
        for (int i = below(3); i >= 0; --i)
            result += members[below(static_cast<int>(members.size()))];
        return result + u']';
    }

    QString quantifier() {
        static const QStringList quantifiers = {"*", "+", "?", "{2}", "{1,2}", "{0}", "{1,}", "{0,1}"};
        if (!oneIn(3))
            return {};
        return quantifiers[below(static_cast<int>(quantifiers.size()))] + (oneIn(3) ? "?" : "");
    }

    std::mt19937 m_random{20240611};
    int m_groups = 0;
};

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
    Generator generator;
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
