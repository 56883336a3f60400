// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "spelling/ginger.h"

namespace tolvo::test {

using Ginger = SpellingWorld;

TEST_F(Ginger, FindsNothingInAnyText) {
    Check spelling(*this, 3);
    EXPECT_FALSE(spelling.Spell(u("zqx xzj")));
    spelling.AddToCustomDic(u("zqx"));
    EXPECT_EQ(spelling.hunspellSuggest(u("teh"))->Count(), 0);
    EXPECT_EQ(said(), QStringList());
    EXPECT_EQ(http.urls.size(), 0);
    EXPECT_EQ(fileContents(dictionaries() + u("/persdict.dat")), "");
}

TEST_F(Ginger, CutsChunks) {
    const std::tuple<const char *, const char *, const char *> cases[] = {
        {"{\"a\":1},{\"b\":2}", "\"a\":1},", "{\"b\":2}"},
        {"{ab}", "ab}", ""},
        {"[a[b]c],d", "a[b]c],", "d"},
        {"[a[b][c]d],e", "a[b][c]d", "],e"}, // a bracket right after another one is not seen
        {"{\"}\"},x", "\"}\"},", "x"},
        {"{\"\\\"}\"},x", "\"\\\"}\"", "},x"}, // escaped quotes are not recognised
        {"(", "", ""},
        {"(abc", "abc", ""},
        {"{\"abc", "\"abc", ""},
        {"((((", "(((", ""},
    };
    for (const auto &[text, chunk, rest] : cases) {
        QString source = u(text);
        EXPECT_EQ(getChunk(boxes, source), u(chunk)) << text;
        EXPECT_EQ(source, u(rest)) << text;
    }
    EXPECT_EQ(said(), QStringList());
    QString none = u("xyz");
    EXPECT_EQ(getChunk(boxes, none), QString());
    EXPECT_EQ(said(), QStringList(u("5 Error parsing Ginger response: expected opening bracket, got 'x' "
                                    "(CSpelling::getChunk)")));
    QString deep(200000, u'[');
    EXPECT_EQ(getChunk(boxes, deep).size(), 199999);
}

TEST_F(Ginger, EndsOnAnyReply) {
    for (const char *reply : {"", "f", "f()", "f(x)", "f({\"a\":1},[2],x);", "f({)", ")(", "f({\"a)"})
        EXPECT_EQ(parseGinger(boxes, u(reply), {}).Count(), 0) << reply;
    EXPECT_EQ(said().size(), 2); // the two that have an x where a bracket should be
    expectFailure(
        failureNumber::serviceException, [&] { (void)parseGinger(boxes, u("f({\"exception\":1})"), {}); },
        u("{\"exception\":1}"));
}

} // namespace tolvo::test
