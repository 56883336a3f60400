// SPDX-License-Identifier: MIT
#include "tests/platform/text_box_contract.h"

#include "base/application.h"
#include "tests/support/examples.h"
#include "tests/support/pictures.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {

namespace {

/// Texts that a text box must hold unchanged, each with all that a document or a converter might take for
/// something else.
std::vector<QString> awkwardTexts() {
    const auto all = [](char16_t first, char16_t last) {
        QString text;
        for (char16_t unit = first; unit <= last; ++unit)
            text += QChar(unit);
        return text;
    };
    const QString nonCharacters = all(0xFDD0, 0xFDEF);
    return {
        {},
        u"\r\n"_s,
        u"one\r\ntwo\r\n\r\n"_s,
        u"\n\ra\nb\rc\n"_s,
        u"\r\r\n\n\r\r\n\r"_s,
        u"a\u2028b\u2029c\u2029"_s,
        u"\uFDD0frame\uFDD1"_s,
        nonCharacters,
        u"\n\r\u2029"_s + nonCharacters + all(0xE000, 0xE0FF) + QChar(0xFFFE) + QChar(0xFFFF),
        u"no\u00A0break\u00AD\uFEFF\uFFFC"_s,
        QString(QChar(0)) + u'x' + QChar(0),
        u"\U0001F600"_s + QChar(0xDC00) + u'|' + QChar(0xD800),
        u"\t tab\v\f\u0085\u001A"_s,
    };
}

class TextBoxContract : public testing::TestWithParam<TextBoxKind> {
  protected:
    void SetUp() override {
        box = GetParam().make();
        box->onChange = [this] { ++changes; };
    }

    [[nodiscard]] QString picture() const { return test::pictureOf(*box); }

    std::unique_ptr<TextBox> box;
    int changes = 0;
    QList<qint64> cuts; ///< lengths of what was cut
};

std::string kindName(const testing::TestParamInfo<TextBoxKind> &info) {
    return info.param.name;
}
INSTANTIATE_TEST_SUITE_P(All, TextBoxContract, testing::ValuesIn(textBoxKinds()), kindName);

TEST_P(TextBoxContract, HoldsEveryTextUnchanged) {
    for (const QString &text : awkwardTexts()) {
        box->setText(text);
        EXPECT_EQ(box->Text(), text);
        EXPECT_EQ(box->length(), text.size());
        box->setText(u"left -- right"_s);
        select(*box, 5, 2);
        box->setSelText(text);
        EXPECT_EQ(box->Text(), u"left "_s + text + u" right"_s);
        EXPECT_EQ(box->SelStart(), 5 + text.size());
        select(*box, 5, static_cast<int>(text.size()));
        EXPECT_EQ(box->SelText(), text);
    }
}

TEST_P(TextBoxContract, PutsSelectionsWhereTheyAreAskedFor) {
    test::forEachExample("/tests/platform/selection_examples.txt",
                         [this](const QString &, const QStringList &row) {
                             const QStringList asked = row[0].split(u' ');
                             box->setText(test::readPicture(row[1]).text);
                             select(*box, asked[0].toInt(), asked[1].toInt());
                             EXPECT_EQ(picture(), row[1]);
                         });
    box->setText(u"x\U0001F600y"_s);
    select(*box, 2, 1);
    EXPECT_EQ(box->SelText(), QString(QChar(0xDE00))) << "half a pair";
}

TEST_P(TextBoxContract, ReportsChangesAndNothingElse) {
    box->setText(u"ab\r\n\ncd"_s);
    EXPECT_EQ(changes, 1);
    box->setText(box->Text());
    select(*box, 1, 3);
    box->setSelText(box->SelText());
    EXPECT_EQ(picture(), u"ab|«»\ncd"_s);
    box->setSelText({});
    EXPECT_EQ(changes, 1);
    box->setSelText(u"x"_s);
    EXPECT_EQ(changes, 2);
    box->setText({});
    box->setText({});
    EXPECT_EQ(changes, 3);
}

TEST_P(TextBoxContract, JoinsLineEndsThatComeTogether) {
    box->setText(u"a\rX\nb"_s);
    select(*box, 2, 1);
    box->setSelText({});
    EXPECT_EQ(picture(), u"a|«»b"_s);
    box->setSelStart(2);
    EXPECT_EQ(picture(), u"a«»|b"_s);
    box->setText(u"\nb"_s);
    box->setSelText(u"a\r"_s);
    EXPECT_EQ(picture(), u"a|«»b"_s);
    box->setText(u"a\r"_s);
    box->setSelStart(2);
    box->setSelText(u"\nb"_s);
    EXPECT_EQ(picture(), u"a|b«»"_s);
}

TEST_P(TextBoxContract, CutsAtItsCapacity) {
    EXPECT_EQ(box->capacity(), textLimit);
    box->setText(QString(70000, u'x'));
    EXPECT_EQ(box->length(), textLimit);
    box->setCapacity(6);
    box->setText(u"123456\r\n8"_s);
    EXPECT_EQ(box->Text(), u"123456"_s);
    box->setText(u"1234"_s);
    select(*box, 1, 2);
    box->setSelText(u"abcdefgh"_s);
    EXPECT_EQ(picture(), u"1abcd«»4"_s);
    box->setSelText(u"more"_s);
    EXPECT_EQ(picture(), u"1abcd«»4"_s);
    EXPECT_EQ(changes, 4);
    // A capacity below the length takes nothing away and lets nothing in.
    box->setCapacity(3);
    EXPECT_EQ(box->length(), 6);
    box->setSelText(u"x"_s);
    EXPECT_EQ(box->Text(), u"1abcd4"_s);
    select(*box, 0, 5);
    box->setSelText(u"xyz"_s);
    EXPECT_EQ(box->Text(), u"xy4"_s);
}

TEST_P(TextBoxContract, ReportsWhatItCutsAndTakesNoPairApart) {
    box->onCut = [this](qint64 length, TextBox::Writer writer) {
        EXPECT_EQ(writer, TextBox::Writer::Code);
        cuts += length;
    };
    box->setCapacity(6);
    const std::tuple<QString, QString, QList<qint64>> wholes[] = {
        {u"123456"_s, u"123456"_s, {}},          {u"12345\r\n8"_s, u"12345"_s, {8}},
        {u"12345\U0001F600"_s, u"12345"_s, {7}}, {u"1234\U0001F600\U0001F600"_s, u"1234\U0001F600"_s, {8}},
        {u"1234\r\n\n"_s, u"1234\r\n"_s, {7}},
    };
    for (const auto &[text, kept, told] : wholes) {
        cuts.clear();
        box->setText(text);
        EXPECT_EQ(box->Text(), kept);
        EXPECT_EQ(cuts, told);
    }
    // The same in place of a selection, where the cut is in the middle.
    const std::tuple<QString, QString, QList<qint64>> parts[] = {
        {u"abcd"_s, u"1«»abcd4"_s, {}},
        {u"abc\r\nd"_s, u"1«»abc4"_s, {8}},
        {u"abc\U0001F600"_s, u"1«»abc4"_s, {7}},
    };
    for (const auto &[text, shown, told] : parts) {
        cuts.clear();
        box->setText(u"1234"_s);
        select(*box, 1, 2);
        replaceAndSelect(*box, text);
        EXPECT_EQ(box->SelText(), shown.sliced(3).chopped(1));
        box->setSelStart(1);
        EXPECT_EQ(picture(), shown);
        EXPECT_EQ(cuts, told);
    }
}

TEST_P(TextBoxContract, ChangeHandlersMayEdit) {
    box->onChange = [this] {
        if (++changes == 1)
            box->setText(u"second\r\n"_s);
    };
    box->setSelText(u"first"_s);
    EXPECT_EQ(box->Text(), u"second\r\n"_s);
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace tolvo
