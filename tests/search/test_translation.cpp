// SPDX-License-Identifier: MIT
// Wildcards, escapes, replacement templates: how one notation becomes another.
#include "base/character_sets.h"
#include "search/replacement_template.h"
#include "tests/search/search_world.h"
#include "tests/support/examples.h"

namespace tolvo::test {

namespace {

class Translation : public SearchWorld {};

TEST_F(Translation, WildcardsBecomeGroups) {
    forEachExample("/tests/search/wildcard_examples.txt", [this](const QString &, const QStringList &row) {
        const auto has = [&](char16_t option) { return row[2].contains(option); };
        WildcardOptions options{.wholeWords = has(u'w')};
        for (qsizetype anchor = 0; anchor < 4; ++anchor) {
            if (has(u"seSE"[anchor]))
                options.anchor = static_cast<Anchor>(anchor);
        }
        if (has(u'g'))
            options.groupingSep = "space";
        const QString expected =
            QString(row[1]).replace("ALPHA", SEARCH_CHARS_ALPHA()).replace("WORD", SEARCH_CHARS_WORD());
        EXPECT_EQ(search.translateWildcardsToRegExp(row[0], has(u'x'), options), expected);
    });
    EXPECT_EQ(said(), "");
    EXPECT_EQ(search.translateWildcardsToRegExp("a[abc", false, {}), "");
    EXPECT_EQ(
        said(),
        "Closing square bracket ] missing.\r\n\r\nIf you want to match a literal [\r\nprecede it with a "
        "backslash - \\[");
}

/// What is compiled for words and numbers finds what the expression that is shown would find.
TEST_F(Translation, CompiledWildcardsEqualTheShownOnes) {
    const QString texts[] = {"rock-n-roll don't-- 'tis x_1-2 caf\u00e9s' a",
                             "1,234.50 -3 +4.5e10 1.2.3 1 000 000 7. .5 12,34,5e3 1.5,000E+2,5"};
    for (const auto &[grouping, decimal] :
         {std::pair(",", "."), {"", "."}, {"", ""}, {".", "."}, {"space", ","}}) {
        for (const char *pattern : {"@", "#", "@ #", "%#"}) {
            const auto translation =
                translateWildcards(QString(pattern), false, {.decimalSep = decimal, .groupingSep = grouping});
            const auto matches = [&](const QString &expression, const QString &text) {
                QStringList found;
                MatchBudget budget;
                RegularExpression(expression, false)
                    .forEachMatch(text, budget, [&](const RegularExpressionMatch &match) {
                        found +=
                            QStringLiteral("%1 %2 %3").arg(match.start()).arg(match.group(0), match.group(1));
                        return true;
                    });
                return found;
            };
            for (const QString &text : texts)
                EXPECT_EQ(matches(translation.compiled, text), matches(translation.shown, text))
                    << pattern << grouping;
        }
    }
}

TEST_F(Translation, SpecialCharacters) {
    const struct {
        const char *text;
        QString expected;
    } rows[] = {
        {"a\\nb\\tc", "a\r\nb\tc"},
        {"\\\\n", "\\n"},
        {"\\x41\\X62\\u20AC\\U20ac", "Ab\u20ac\u20ac"},
        {"\\x4", QString(QChar(4))},
        {"\\x", QString(QChar(u'\0'))},
        {"\\q end\\", "\\q end\\"},
        {"\\x5Cx41", "\\x41"},
        {"\\x5Cu0041", "A"},
    };
    for (const auto &[text, expected] : rows) {
        QString translated = text;
        EXPECT_EQ(search.translateSpecialChars(translated, true), expected) << text;
        EXPECT_EQ(translated, expected);
    }
    EXPECT_EQ(said(), "");
    QString bad = "a\\u12G4b\\x41";
    EXPECT_EQ(search.translateSpecialChars(bad, false), "");
    EXPECT_TRUE(said().contains("Invalid hex in \\u12G4 (error 512)\r\n in CSearch::replaceHex"));
}

TEST_F(Translation, Templates) {
    const RegularExpression expression(u"(b)(x)?(c)", true);
    RegularExpression::MatchState state(expression);
    const std::pair<const char *, const char *> rows[] = {
        {"<$&>", "a<bc>d"}, {"$1$3$2.", "abc.d"}, {"$0$4$", "a$0$4$d"},
        {"$$1", "a$1d"},    {"$10", "ab0d"},      {"\\", "a\\d"},
    };
    for (const auto &[text, expected] : rows) {
        MatchBudget budget;
        EXPECT_EQ(replaceMatches(expression, state, u"abcd",
                                 ReplacementTemplate(QString(text), expression.groups()), 99, budget),
                  QString(expected))
            << text;
    }
}

} // namespace

} // namespace tolvo::test
