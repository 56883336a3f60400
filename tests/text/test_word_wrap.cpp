// SPDX-License-Identifier: MIT
#include "base/strings.h"
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using WordWrap = Engine;

struct Case {
    int width;
    const char16_t *text, *expected;
    bool hanging = false;
    bool tab = true;
};

TEST_F(WordWrap, breaksLinesAtBlanks) {
    for (const Case &c :
         {Case{20, u"aaaa bbbb cccc dddd eeee ", u"aaaa bbbb cccc dddd|eeee"},
          {12, u"short|text ", u"short|text"},
          {12, u"short text|", u"short text|"},
          {12, u"", u""},
          {12, u"a  b   c", u"a  b   c"},
          {12, u"  ab c", u"ab c"},
          {12, u"aaaaaaaaaaaa b", u"|aaaaaaaaaaaa|b"},
          {12, u"a bbbbbbbbbbbbbbb c d", u"a|bbbbbbbbbbbbbbb|c d"},
          {12, u"a\tb ccc", u"a\tb|ccc"},
          {12, u"aaaaaaaaa \tb c", u"aaaaaaaaa |\tb c"},
          {12, u"aaaa bbbb cccc dddd eeee", u"aaaa bbbb|\tcccc|\tdddd|\teeee", true},
          {13, u"aaaa bbbb cccc dddd|e ", u"aaaa bbbb|        cccc|        dddd|e", true, false},
          // After the last blank everything is one word, line ends included.
          {12, u"aaaa bb|c|d", u"aaaa|bb|c|d"},
          {12, u"aaaa|bbbbbbbbbbbbbbbbbbbbbb", u"|aaaa|bbbbbbbbbbbbbbbbbbbbbb"}})
        EXPECT_EQ(engine.WordWrap(lines(c.text), c.width, c.hanging, c.tab, false), lines(c.expected));
}

qsizetype widthOnScreen(QStringView line) {
    qsizetype column = 0;
    for (const QChar unit : line)
        column += unit == u'\t' ? 8 - column % 8 : 1;
    return column;
}

TEST_F(WordWrap, justifiesAllLinesButTheRaggedOnes) {
    const QString paragraph =
        u"The quick brown fox jumps over the lazy dog and runs away again and again. "_s;
    const QString text = paragraph.repeated(3) + lines(u"A short line |") + paragraph + lines(u"|one ");
    for (const bool tab : {false, true}) {
        const QString wrapped = engine.WordWrap(text, 33, true, tab, false);
        const QString justified = engine.WordWrap(text, 33, true, tab, true);
        const auto before = splitLines(wrapped);
        const auto after = splitLines(justified);
        ASSERT_EQ(after.size(), before.size());
        EXPECT_FALSE(justified.contains(QChar(u'\0')));
        qsizetype ragged = 0;
        for (qsizetype i = 0; i < after.size(); ++i) {
            EXPECT_EQ(after.at(i).toString().simplified(), before.at(i).toString().simplified());
            if (widthOnScreen(after.at(i)) == 33)
                continue;
            ++ragged;
            EXPECT_EQ(after.at(i), before.at(i));
        }
        EXPECT_EQ(ragged, 3) << justified.toStdString(); // two paragraph ends, and the last line
    }
    EXPECT_EQ(engine.WordWrap(u"word aaaaaaaaaaaaaaaa b", 12, false, false, true),
              lines(u"word|aaaaaaaaaaaaaaaa|b"));
}

} // namespace
