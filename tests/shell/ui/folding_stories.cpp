// SPDX-License-Identifier: MIT
// Captions go on in further lines where they are too long for one.
#include "widgets/FoldingChoice.h"

#include <QCheckBox>
#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(FoldingStory, linesBreakAtBlanksAndTheLetterMarkTakesNoRoom) {
    const QFontMetrics metrics{QFont()};
    const struct {
        const char *text;
        const char *asWideAs;
        const char *folded;
    } cases[] = {{"&Skip file names", "Skip file names", "&Skip file names"},
                 {"&Skip file names", "Skip file name", "&Skip file\nnames"},
                 {"&Skip file names", "Skip", "&Skip\nfile\nnames"},
                 {"incomprehensible to me", "to me", "incomprehensible\nto me"},
                 {"", "", ""}};
    for (const auto &[text, asWideAs, folded] : cases) {
        const int width = metrics.size(0, QString::fromLatin1(asWideAs)).width();
        EXPECT_EQ(foldedText(QString::fromLatin1(text), metrics, width), QString::fromLatin1(folded))
            << asWideAs;
    }
}

TEST(FoldingStory, aChoiceIsHigherWhereItIsNarrower) {
    const FoldingChoice<QCheckBox> choice(QStringLiteral("Skip the names of files"));
    const QSize whole = choice.sizeHint();
    EXPECT_EQ(choice.heightForWidth(whole.width()), whole.height());
    EXPECT_GT(choice.heightForWidth(whole.width() - 1), whole.height());
    EXPECT_LT(choice.minimumSizeHint().width(), whole.width());
    EXPECT_GT(choice.heightForWidth(choice.minimumSizeHint().width()),
              choice.heightForWidth(whole.width() - 1));
}

} // namespace
