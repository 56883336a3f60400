// SPDX-License-Identifier: MIT
// Marks of several kinds in one text box.
#include "platform/desktop/PlainTextBox.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTest>

namespace tolvo {
namespace {

class TextTintTest : public testing::Test {
  protected:
    void show(const QString &text, PlainTextBox::Lines lines = PlainTextBox::Lines::AsTheyAre) {
        box = std::make_unique<PlainTextBox>(lines);
        box->resize(400, 200);
        box->setText(text);
        box->show();
        plain = picture();
    }
    [[nodiscard]] QImage picture() const { return box->viewport()->grab().toImage(); }
    /// The rows of the picture, from 0, that a layer of marks changes; nothing if it changes none.
    [[nodiscard]] std::optional<std::pair<int, int>> rowsTinted() const {
        const QImage tinted = picture();
        std::optional<std::pair<int, int>> rows;
        for (int y = 0; y < tinted.height(); ++y) {
            for (int x = 0; x < tinted.width(); ++x) {
                if (tinted.pixel(x, y) != plain.pixel(x, y))
                    rows = {rows ? rows->first : y, y};
            }
        }
        return rows;
    }
    std::unique_ptr<PlainTextBox> box;
    QImage plain;
};

TEST_F(TextTintTest, EveryLayerHasItsOwnLookAndStandsBesideTheOthers) {
    show(QStringLiteral("one two three four\r\nfive\r\n\r\nsix"));
    const TintLayer layers[] = {TintLayer::Changes, TintLayer::Troubles, TintLayer::Matches,
                                TintLayer::CurrentMatch};
    QList<QImage> looks;
    for (const TintLayer layer : layers) {
        box->setTint(layer, {{4, 3}});
        EXPECT_FALSE(looks.contains(picture()));
        looks += picture();
        box->setTint(layer, {});
        EXPECT_EQ(picture(), plain);
    }
    box->setTint(TintLayer::Matches, {{0, 3}});
    const QImage alone = picture();
    box->setTint(TintLayer::Changes, {{8, 5}});
    EXPECT_NE(picture(), alone);
    box->setTint(TintLayer::Changes, {});
    EXPECT_EQ(picture(), alone);
}

TEST_F(TextTintTest, OnlyTheLinesOfAMarkAreTinted) {
    show(QStringLiteral("one\r\ntwo\r\n\r\nfour"));
    const int line = box->fontMetrics().lineSpacing();
    const struct {
        Stretch mark;
        int first, last; ///< lines, from 0
    } rows[] = {
        {{0, 3}, 0, 0}, {{0, 5}, 0, 0}, // its line end belongs to the first line alone
        {{3, 2}, 0, 0}, {{5, 3}, 1, 1}, {{5, 9}, 1, 3}, {{10, 0}, 2, 2}, {{16, 0}, 3, 3}, {{0, 16}, 0, 3},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(testing::Message() << row.mark.start << "+" << row.mark.length);
        box->setTint(TintLayer::Matches, {row.mark});
        const auto tinted = rowsTinted();
        ASSERT_TRUE(tinted);
        const int margin = static_cast<int>(box->document()->documentMargin());
        EXPECT_EQ((tinted->first - margin) / line, row.first);
        EXPECT_EQ((tinted->second - margin) / line, row.last);
    }
}

TEST_F(TextTintTest, ManyMarksShowWhereverTheTextIsScrolledTo) {
    QList<Stretch> marks;
    for (int i = 0; i < 10'000; ++i)
        marks += {i * 6, 2};
    const QString words = QStringLiteral("ab cd ").repeated(10'000);
    for (const auto lines : {PlainTextBox::Lines::AsTheyAre, PlainTextBox::Lines::Wrapped}) {
        show(words, lines);
        for (QScrollBar *bar : {box->horizontalScrollBar(), box->verticalScrollBar()}) {
            for (const int value : {bar->maximum() / 2, bar->maximum()}) {
                bar->setValue(value);
                box->setTint(TintLayer::Matches, {});
                plain = picture();
                box->setTint(TintLayer::Matches, marks);
                EXPECT_TRUE(rowsTinted()) << value;
            }
        }
        const Stretch seen = box->textInSight();
        EXPECT_EQ(seen.start + seen.length, words.size());
        EXPECT_EQ(seen.start == 0, lines == PlainTextBox::Lines::AsTheyAre);
    }
}

TEST_F(TextTintTest, OddTextsAreSurvived) {
    for (const QString &text : {QString(), QString(QChar(0xD800)), QStringLiteral("שלום abc עולם"),
                                QStringLiteral("שלום ").repeated(5000), QString(5000, QChar(0xDC00))}) {
        show(text);
        box->setTint(TintLayer::Matches, {{0, 1}, {1, static_cast<int>(text.size())}, {70'000, 5}});
        box->setTint(TintLayer::CurrentMatch, {{0, static_cast<int>(text.size())}});
        EXPECT_EQ(rowsTinted().has_value(), true) << text.left(20).toStdString();
    }
}

} // namespace
} // namespace tolvo
