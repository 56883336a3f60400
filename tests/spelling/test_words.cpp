// SPDX-License-Identifier: MIT
#include "spelling/words.h"
#include "spelling_world.h"

namespace tolvo::test {

TEST(Words, AreTakenOneAfterTheOther) {
    struct Case {
        const char *text;
        bool noHyphen;
        QStringList words;
    };
    const Case cases[] = {
        {"well-known don't -x y'", false, {u("well-known"), u("don't"), u("x"), u("y")}},
        {"well-known don't", true, {u("well"), u("known"), u("don't")}},
        {"abc1def", false, {u("abc"), u("def")}},
        {"a--b 'tis rock'n'roll-", false, {u("a"), u("b"), u("tis"), u("rock'n'roll")}},
        {"caf\u00e9 \u0434\u0430 \u0153uvre", false, {u("caf\u00e9"), u("\u0153uvre")}},
        {" 12 ", false, {}},
        {"", false, {}},
    };
    for (const Case &one : cases) {
        const QString text = u(one.text);
        QStringList words;
        qsizetype position = 1;
        while (position <= text.size()) {
            const QStringView word = getNextWord(text, position, one.noHyphen);
            if (!word.isEmpty())
                words += word.toString();
            EXPECT_EQ(text.mid(position - 1 - word.size(), word.size()), word);
        }
        EXPECT_EQ(words, one.words) << one.text;
    }
}

using Places = SpellingWorld;

TEST_F(Places, OfAPhrase) {
    struct Case {
        const char *text, *phrase, *context;
        qsizetype place;
    };
    const Case cases[] = {
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
    for (const Case &one : cases)
        EXPECT_EQ(findThePlace(boxes, 5, u(one.text), u(one.phrase), u(one.context)), one.place)
            << one.text << " | " << one.phrase;
    EXPECT_EQ(said(), QStringList());

    EXPECT_EQ(findThePlace(boxes, 1, u("no such"), u("teh"), {}), 0);
    EXPECT_EQ(said(), QStringList(u("5007 Text 'teh' cannot be found (CSpelling::findThePlace)")));
    try {
        (void)findThePlace(boxes, 1, u("text"), u("te(h"), {});
        FAIL() << "an invalid pattern was taken";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), failureNumber::invalidPattern);
    }
}

TEST(SuggestionList, IsMadeOnceWhenItIsLookedAt) {
    int made = 0;
    CSpellingSuggestions list([&made](CSpellingSuggestions &self) {
        ++made;
        self.Add({}, u("one"), {});
    });
    EXPECT_EQ(made, 0);
    list.Add({}, u("two"), u("two"));
    EXPECT_EQ(list.texts(), QStringList({u("one"), u("two")}));
    EXPECT_EQ(made, 1);
    EXPECT_TRUE(list.Exists(u("two")));
    EXPECT_THROW(list.Add({}, u("again"), u("two")), Failure);
    list.Remove(1);
    EXPECT_EQ(list.Item(u("two")).Suggestion, u("two"));
    EXPECT_EQ(list.Count(), 1);
}

} // namespace tolvo::test
