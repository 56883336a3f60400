// SPDX-License-Identifier: MIT
#include "spelling/reply_reports.h"
#include "spelling/words.h"
#include "spelling_world.h"

namespace tolvo::test {

TEST(Words, AreTakenOneAfterTheOther) {
    const std::tuple<const char *, bool, QStringList> cases[] = {
        {"well-known don't -x y'", false, {u("well-known"), u("don't"), u("x"), u("y")}},
        {"well-known don't", true, {u("well"), u("known"), u("don't")}},
        {"abc1def", false, {u("abc"), u("def")}},
        {"a--b 'tis rock'n'roll-", false, {u("a"), u("b"), u("tis"), u("rock'n'roll")}},
        {"caf\u00e9 \u0434\u0430 \u0153uvre", false, {u("caf\u00e9"), u("\u0153uvre")}},
        {" 12 ", false, {}},
        {"", false, {}},
    };
    for (const auto &[picture, noHyphen, expected] : cases) {
        const QString text = u(picture);
        QStringList words;
        qsizetype position = 1;
        while (position <= text.size()) {
            const QStringView word = getNextWord(text, position, noHyphen);
            if (!word.isEmpty())
                words += word.toString();
            EXPECT_EQ(text.mid(position - 1 - word.size(), word.size()), word);
        }
        EXPECT_EQ(words, expected) << picture;
    }
}

using Places = SpellingWorld;

TEST_F(Places, OfAPhrase) {
    const std::tuple<const char *, const char *, const char *, qsizetype> cases[] = {
        {"Teh dog", "teh", "anything", 1}, // at the start any context fits
        {"a teh", "teh", "a", 3},
        {"A teh", "teh", "a", 0},
        {"the dog, teh", "teh", "dog", 10},
        {"stop. teh", "teh", "", 7},
        {"stop\" teh", "teh", "", 7},
        {"stop\rteh", "teh", "", 0},
        {"  teh", "teh", "", 3},
        {"the other teh", "teh", "", 0},
        {"xteh a teh", "teh", "a", 8},  // whole words only
        {"a teh b teh", "teh", "b", 0}, // the first match alone counts
        {"a t.h b", "t.h", "a", 3},
        {"a teh b", "(teh|b)", "a", 3}, // the phrase is a pattern as it stands
    };
    ReplyReports reports;
    for (const auto &[text, phrase, context, place] : cases)
        EXPECT_EQ(findThePlace(reports, 5, u(text), u(phrase), u(context)), place) << text << " | " << phrase;
    reports.show(boxes);
    EXPECT_EQ(said(), QStringList());

    EXPECT_EQ(findThePlace(reports, 1, u("no such"), u("teh"), {}), 0);
    reports.show(boxes);
    EXPECT_EQ(said(), QStringList(u("5007 Text 'teh' cannot be found (CSpelling::findThePlace)")));
    expectFailure(failureNumber::invalidPattern,
                  [&] { (void)findThePlace(reports, 1, u("text"), u("te(h"), {}); });
}

} // namespace tolvo::test
