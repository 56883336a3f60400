// SPDX-License-Identifier: MIT
#include "base/strings.h"
#include "tests/text/engine.h"

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

using WordWrap = Engine;

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
