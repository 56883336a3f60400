// SPDX-License-Identifier: MIT
// What a search would do beside what it does: on random requests and texts, in all modes.
#include "base/CParams.h"
#include "platform/line_ends.h"
#include "search/found_matches.h"
#include "search/result_lines.h"
#include "tests/search/pattern_generator.h"
#include "tests/search/search_world.h"

#include <tuple>

namespace tolvo::test {

namespace {

PatternWords words() {
    return {.letters = QStringLiteral("abAB."),
            .atoms = {"[Aa]", "(a)(b)?", "\\w", "\\s", "\\r\\n", "\\n", ".*", "a+", "x"},
            .members = {"a", "B", "\\n", "0-9"},
            .textUnits = QStringLiteral("aAbB 1x\u00e9")};
}

class FoundMatchesTest : public SearchWorld {
  protected:
    FoundMatches found(const SearchRequest &request) {
        return findMatches(box.Text(), request, textMethods, budget);
    }
    /// The list holds places of the text with LF; a place between CR and LF is before the CR.
    QList<int> starts(const QList<qint32> &locations) {
        QList<int> result;
        for (const qint32 location : locations) {
            box.setSelStart(unpackLocation(location).start);
            result += box.SelStart();
        }
        return result;
    }

    void compareWithFindAll(const SearchRequest &request) {
        list = {};
        search.run(SearchVerb::FindAll, request);
        const FoundMatches here = found(request);
        const bool failed = !said().isEmpty();
        EXPECT_EQ(here.isValid(), !failed) << here.trouble.toStdString();
        QList<int> places;
        for (const auto &[start, length] : here.places)
            places += static_cast<int>(start);
        EXPECT_EQ(places, starts(list.locations));
        for (qsizetype i = 0; i < here.places.size(); ++i) {
            const auto &[start, length] = here.places.at(i);
            const QString matched = box.Text().sliced(start, length);
            const qsizetype listed = unpackLocation(list.locations.at(i)).length;
            EXPECT_EQ(request.mode == SearchMode::Simple ? length : crLfToLf(matched).size(), listed);
        }
    }

    void compareWithReplaceAll(const SearchRequest &request) {
        const QString before = box.Text();
        const FoundMatches here = found(request);
        const auto previews = previewReplacements(before, here.places, request, textMethods, budget);
        const auto forecast = forecastReplaceAll(before, request, textMethods, box.capacity(), budget);
        search.run(SearchVerb::ReplaceAll, request);
        const QString message = said();
        ASSERT_EQ(forecast.has_value(), here.isValid() && !request.find.isEmpty());
        if (!forecast)
            return;
        EXPECT_TRUE(message.startsWith(QString::number(forecast->count))) << message.toStdString();
        QString replaced;
        qsizetype done = 0;
        for (const auto &[place, replacement] : previews) {
            if (place.start < done) // overlaps the one before
                continue;
            replaced += before.sliced(done, place.start - done) + replacement;
            done = place.start + place.length;
        }
        replaced += before.sliced(done);
        // What was replaced may make or break a word beside it; an empty match has no place.
        if (here.empty == 0 && !request.wholeWords) {
            EXPECT_EQ(lfToCrLf(crLfToLf(replaced)), lfToCrLf(crLfToLf(box.Text())));
        }
    }

    MatchBudget budget;
};

TEST_F(FoundMatchesTest, AreThoseOfFindAllAndReplaceAll) {
    PatternGenerator generator(words(), 20261123);
    const QStringList literals = {"a", "aa", "ab", "A", "\\n", "b\\n", "\\x", "\\u00zz", ""};
    const QStringList wildcards = {"a*", "?b", "@", "#", "[ab]", "[a", "%+", "a~", "!", "\\n"};
    int withMatches = 0;
    for (int i = 0; i < 6000 && !HasFailure(); ++i) {
        SearchRequest request{.mode = static_cast<SearchMode>(1 + i % 3),
                              .matchCase = generator.oneIn(2),
                              .wholeWords = generator.oneIn(4),
                              .smartReplace = generator.oneIn(2),
                              .specialChars = generator.oneIn(2)};
        request.find = request.mode == SearchMode::Simple     ? literals.at(i / 3 % literals.size())
                       : request.mode == SearchMode::Wildcard ? wildcards.at(i / 3 % wildcards.size())
                                                              : generator.pattern();
        request.replace = generator.oneIn(2) ? QStringLiteral("<$1$&>") : QStringLiteral("z\\n");
        box.setText(lfToCrLf(crLfToLf(generator.text())));
        SCOPED_TRACE(settingsString(request, true).toStdString() + " in " + shown(box.Text()));
        compareWithFindAll(request);
        withMatches += list.locations.isEmpty() ? 0 : 1;
        compareWithReplaceAll(request);
    }
    EXPECT_GT(withMatches, 1500);
}

TEST_F(FoundMatchesTest, SayWhatIsWrongAndWhere) {
    const auto [simple, wildcard, expression] =
        std::tuple{SearchMode::Simple, SearchMode::Wildcard, SearchMode::RegularExpression};
    struct Row {
        SearchMode mode;
        const char *find;
        const char *trouble;
        int at;
    };
    for (const Row &row : {Row{expression, "a(b", "a group is not closed", 1},
                           Row{expression, "(a(b)", "a group is not closed", 0},
                           Row{expression, "ab)c", "a closing bracket ) has no partner", 2},
                           Row{expression, "a|*b", "there is nothing to repeat", 2},
                           Row{expression, "a(?<x>b)", "a group begins with (? and no :, = or ! after it", 1},
                           Row{expression, "ab\\", "a backslash stands at the end", 2},
                           Row{wildcard, "a[bc", "a set is not closed: ] is missing", 1},
                           Row{simple, "ab\\xZZ", "Invalid hex in \\xZZ", 2}}) {
        SCOPED_TRACE(row.find);
        box.setText(QStringLiteral("abc"));
        const FoundMatches here = found({.mode = row.mode, .find = row.find, .specialChars = true});
        EXPECT_EQ(here.trouble, row.trouble);
        EXPECT_EQ(here.troubleAt, row.at);
    }
}

TEST_F(FoundMatchesTest, EndInTime) {
    box.setText(QString(5000, u'a'));
    const SearchRequest all{.mode = SearchMode::RegularExpression, .find = "a"};
    const FoundMatches some = findMatches(box.Text(), all, textMethods, budget, 100);
    EXPECT_EQ(some.places.size(), 100);
    EXPECT_TRUE(some.more);

    MatchBudget hurried({}, std::chrono::milliseconds(20));
    const FoundMatches none = findMatches(
        box.Text(), {.mode = SearchMode::RegularExpression, .find = "(a+)+[bc]"}, textMethods, hurried);
    EXPECT_TRUE(none.more);
    EXPECT_FALSE(none.isValid());

    box.setText(QString(40000, u'a'));
    const SearchRequest doubled{.mode = SearchMode::RegularExpression, .find = "a", .replace = "aa"};
    const auto forecast = forecastReplaceAll(box.Text(), doubled, textMethods, box.capacity(), budget);
    ASSERT_TRUE(forecast);
    EXPECT_EQ(forecast->count, 40000);
    EXPECT_TRUE(forecast->isTooLong);
}

TEST_F(FoundMatchesTest, AreCopiedOneALine) {
    const SearchRequest pairs{.mode = SearchMode::RegularExpression, .find = "(\\w)=(\\d)"};
    struct Row {
        SearchRequest search;
        const char *form;
        const char *copied;
    };
    for (const Row &row : {Row{pairs, "$2 $1", "1 a|2 b"}, Row{pairs, "", "a=1|b=2"},
                           Row{pairs, "<$&>\\n", "<a=1>||<b=2>|"}, Row{{.find = "="}, "$1$&", "$1=|$1="},
                           Row{{.mode = SearchMode::Wildcard, .find = "%"}, "$1", "1|2"},
                           Row{{.mode = SearchMode::RegularExpression, .find = "^|(?=b)"}, "x", ""}}) {
        SCOPED_TRACE(row.form);
        show("a=1,|b=2");
        MatchCopy copy{.search = row.search, .form = row.form};
        const auto copied = search.copyMatches(copy);
        ASSERT_TRUE(copied);
        EXPECT_EQ(copied->text, QString(row.copied).replace(u'|', QStringLiteral("\r\n")));
        copy.inPlace = true;
        const MatchCopy again = readMatchCopy(CParams(settingsString(copy)));
        EXPECT_EQ(std::tuple(again.search.mode, again.search.find, again.form, again.inPlace),
                  std::tuple(copy.search.mode, copy.search.find, copy.form, true));
    }
    EXPECT_FALSE(search.copyMatches({.search = {.mode = SearchMode::RegularExpression, .find = "("}}));
    EXPECT_TRUE(said().contains(QStringLiteral("a group is not closed")));
}

} // namespace

} // namespace tolvo::test
