// SPDX-License-Identifier: MIT
// What a search says while it is being written; the rows of live_examples.txt, and texts and patterns that
// lead it astray.
#include "search/live_search.h"
#include "tests/support/examples.h"
#include "tests/support/pictures.h"

#include <chrono>

namespace tolvo::test {
namespace {

using Span = RegularExpression::Span;

SearchRequest readOptions(const QString &options, const QString &find) {
    SearchRequest request{.mode = static_cast<SearchMode>(options.front().digitValue()), .find = find};
    if (options.contains(u'D'))
        request.direction = SearchDirection::Down;
    else if (options.contains(u'U'))
        request.direction = SearchDirection::Up;
    else
        request.direction = SearchDirection::FromStart;
    request.matchCase = options.contains(u'c');
    request.wholeWords = options.contains(u'w');
    request.specialChars = options.contains(u'x');
    return request;
}

TEST(LiveSearch, SaysWhatThereIs) {
    forEachExample("/tests/search/live_examples.txt", [](const QString &section, const QStringList &sides) {
        LiveQuestion question{.request = readOptions(sides[0], sides[1])};
        if (section == u"Answer") {
            const Picture seen = readPicture(sides[2]);
            question.text = seen.text;
            EXPECT_EQ(answerInWords(liveAnswer(question, {}), question.request, {seen.start, seen.length}),
                      sides[3]);
            return;
        }
        question.request.replace = sides[2];
        question.text = sides[3];
        question.isReplacing = true;
        if (section == u"Preview") {
            QStringList becomes;
            for (const auto &preview : livePreview(question, liveAnswer(question, {}).found.places, {}))
                becomes += preview.replacement;
            EXPECT_EQ(becomes.join(u','), sides[4]);
        } else {
            EXPECT_EQ(section, u"Forecast");
            question.capacity = sides[4].toInt();
            EXPECT_EQ(forecastInWords(liveAnswer(question, {})), sides[5]);
        }
    });
}

TEST(LiveSearch, FindsItsWayAmongTheMatches) {
    const QList<Span> places{{2, 2}, {4, 1}, {10, 5}};
    EXPECT_EQ(matchAt(places, {4, 1}), 1);
    for (const Span other : {Span{4, 0}, Span{4, 2}, Span{3, 1}, Span{20, 1}})
        EXPECT_EQ(matchAt(places, other), -1);
    const auto inSight = [&](Span part, qsizetype most) { return matchesIn(places, part, most).size(); };
    EXPECT_EQ(inSight({0, 100}, 9), 3);
    EXPECT_EQ(inSight({0, 100}, 2), 2);
    EXPECT_EQ(inSight({4, 3}, 9), 1);
    EXPECT_EQ(inSight({12, 1}, 9), 1) << "in the midst of a match";
    EXPECT_EQ(inSight({16, 9}, 9), 0);
}

TEST(LiveSearch, IsNotLedAstray) {
    const QString full(65'535, u'a');
    struct Row {
        const char *options;
        QString find, text, words;
    };
    const QString letters(32'000, u'a');
    for (const Row &row :
         {Row{"1D", "a", full, "more than 10,000 matches"}, Row{"3D", "a", full, "more than 10,000 matches"},
          Row{"3D", "[^]*", full, "1 match"},
          Row{"3D", "x*", full, "only empty matches: Replace All fills them"},
          Row{"1D", letters, full, "more than 10,000 matches"}, Row{"3D", letters, full, "2 matches"},
          Row{"2D", QString(32'000, u'['), full, "a set is not closed: ] is missing, at character 1"},
          Row{"1D", QChar(0xD800), QString(QChar(0xD800)) + QChar(0xD800), "2 matches"},
          Row{"3D", QChar(0xDC00), QString(QChar(0xD800)) + QChar(0xDC00), "1 match"}}) {
        SCOPED_TRACE(row.find.left(20).toStdString());
        const LiveQuestion question{.text = row.text, .request = readOptions(row.options, row.find)};
        EXPECT_EQ(answerInWords(liveAnswer(question, {}), question.request, {0, 0}), row.words);
    }
}

TEST(LiveSearch, EndsWhenNobodyWaits) {
    const LiveQuestion question{.text = QString(65'535, u'a'), .request = readOptions("3D", "(a|a)*\\d")};
    Cancellation cancellation;
    cancellation.cancel();
    const auto start = std::chrono::steady_clock::now();
    const LiveAnswer answer = liveAnswer(question, cancellation);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(1));
    EXPECT_EQ(answerInWords(answer, question.request, {0, 0}), "this takes too long on this text");
}

} // namespace
} // namespace tolvo::test
