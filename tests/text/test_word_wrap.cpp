// SPDX-License-Identifier: MIT
#include "base/strings.h"
#include "tests/text/engine.h"

#include <algorithm>
#include <random>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using WordWrap = Engine;

struct Case {
    int width;
    const char16_t *text;
    const char16_t *expected;
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
          // Behind the last blank everything is one word, line ends included.
          {12, u"aaaa bb|c|d", u"aaaa|bb|c|d"},
          {12, u"aaaa|bbbbbbbbbbbbbbbbbbbbbb", u"|aaaa|bbbbbbbbbbbbbbbbbbbbbb"}})
        EXPECT_EQ(engine.WordWrap(lines(c.text), c.width, c.hanging, c.tab, false), lines(c.expected));
}

/// The scan as it is told: everything is looked for anew from each position.
QString wrappedStepByStep(const QString &text, int width, bool hanging, bool tab) {
    const auto firstOf = [](qsizetype a, qsizetype b) { return b == 0 ? a : std::min(a, b); };
    QString output;
    qsizetype column = 0;
    const auto put = [&](const QString &word) {
        const qsizetype length = word == u"\t" ? (column / 8 + 1) * 8 - column : word.size();
        if (column + length + 1 <= width) {
            if (column > 0 && word != u"\t" && !output.endsWith(u'\t')) {
                output += u' ';
                ++column;
            }
            output += word;
            column += length;
        } else {
            output += u"\r\n"_s;
            if (hanging)
                output += tab ? u"\t"_s : u"        "_s;
            output += word;
            column = (hanging ? 8 : 0) + word.size();
        }
    };
    qsizetype position = 1;
    for (;;) {
        const auto find = [&](const char *what) {
            return text.indexOf(QLatin1StringView(what), position - 1) + 1;
        };
        const qsizetype n = firstOf(firstOf(find(" "), find("\r\n")), find("\t"));
        if (n == 0)
            break;
        put(text.mid(position - 1, n - position));
        if (text.at(n - 1) == u'\t')
            put(u"\t"_s);
        const bool lineEnd = text.mid(n - 1, 2) == u"\r\n";
        if (lineEnd) {
            output += u"\r\n"_s;
            column = 0;
        }
        position = n + (lineEnd ? 2 : 1);
    }
    if (position <= text.size())
        put(text.mid(position - 1));
    return output;
}

QString randomText(std::mt19937 &random) {
    static const QStringList pieces = QString(" ~ ~\t~\r\n~\r~word~a~bc~\n").split(u'~');
    QString text;
    for (auto left = random() % 60; left > 0; --left)
        text += pieces.at(static_cast<qsizetype>(random() % 9));
    return text;
}

TEST_F(WordWrap, isWhatTheStepsGive) {
    std::mt19937 random(2);
    for (int round = 0; round < 5000; ++round) {
        const QString text = randomText(random);
        const int width = static_cast<int>(random() % 30);
        const bool hanging = random() % 2 == 0;
        const bool tab = random() % 2 == 0;
        ASSERT_EQ(engine.WordWrap(text, width, hanging, tab, false),
                  wrappedStepByStep(text, width, hanging, tab));
    }
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
