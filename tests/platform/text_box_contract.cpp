// SPDX-License-Identifier: MIT
#include "tests/platform/text_box_contract.h"

#include "base/application.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace tolvo {

std::vector<QString> awkwardTexts() {
    QString nonCharacters;
    for (char16_t unit = 0xFDD0; unit <= 0xFDEF; ++unit)
        nonCharacters += QChar(unit);
    QString privateUse;
    for (char16_t unit = 0xE000; unit <= 0xE0FF; ++unit)
        privateUse += QChar(unit);
    return {
        {},
        QStringLiteral("\r\n"),
        QStringLiteral("one\r\ntwo\r\n\r\n"),
        QStringLiteral("\n\ra\nb\rc\n"),
        QStringLiteral("\r\r\n\n\r\r\n\r"),
        QStringLiteral("a\u2028b\u2029c\u2029"),
        QStringLiteral("\uFDD0frame\uFDD1"),
        nonCharacters,
        QStringLiteral("\n\r\u2029") + nonCharacters + privateUse + QChar(0xFFFE) + QChar(0xFFFF),
        QStringLiteral("no\u00A0break\u00AD\uFEFF\uFFFC"),
        QString(QChar(0)) + u'x' + QChar(0),
        QStringLiteral("\U0001F600") + QChar(0xDC00) + u'|' + QChar(0xD800),
        QStringLiteral("\t tab\v\f\u0085\u001A"),
    };
}

namespace {

class TextBoxContract : public testing::TestWithParam<TextBoxKind> {
  protected:
    void SetUp() override {
        box = GetParam().make();
        box->onChange = [this] { ++changes; };
    }

    /// The text with its selection in brackets, a caret as "[]".
    [[nodiscard]] QString picture() const {
        QString text = box->Text();
        text.insert(box->SelStart() + box->SelLength(), u']');
        text.insert(box->SelStart(), u'[');
        return text;
    }

    std::unique_ptr<TextBox> box;
    int changes = 0;
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
        box->setText(QStringLiteral("left [] right"));
        select(*box, 5, 2);
        box->setSelText(text);
        EXPECT_EQ(box->Text(), QStringLiteral("left ") + text + QStringLiteral(" right"));
        EXPECT_EQ(box->SelStart(), 5 + text.size());
        select(*box, 5, static_cast<int>(text.size()));
        EXPECT_EQ(box->SelText(), text);
    }
}

TEST_P(TextBoxContract, PutsSelectionsWhereTheyAreAskedFor) {
    struct Row {
        QString text;
        int start, length;
        QString shown;
    };
    const Row rows[] = {
        {QStringLiteral("one\r\ntwo"), 5, 2, QStringLiteral("one\r\n[tw]o")},
        {QStringLiteral("one\r\ntwo"), 3, 2, QStringLiteral("one[\r\n]two")},
        {QStringLiteral("one\r\ntwo"), 3, 1, QStringLiteral("one[\r\n]two")},
        {QStringLiteral("one\r\ntwo"), 4, 0, QStringLiteral("one[]\r\ntwo")},
        {QStringLiteral("one\r\ntwo"), 4, 2, QStringLiteral("one[\r\n]two")},
        {QStringLiteral("one\r\ntwo"), 1, 3, QStringLiteral("o[ne\r\n]two")},
        {QStringLiteral("one\r\ntwo"), 99, 5, QStringLiteral("one\r\ntwo[]")},
        {QStringLiteral("one\r\ntwo"), -3, -1, QStringLiteral("[]one\r\ntwo")},
        {QStringLiteral("one\r\ntwo"), 6, 2147483647, QStringLiteral("one\r\nt[wo]")},
        {QStringLiteral("a\r\r\nb\n\rc"), 2, 1, QStringLiteral("a\r[\r\n]b\n\rc")},
        {QStringLiteral("a\r\r\nb\n\rc"), 6, 1, QStringLiteral("a\r\r\nb\n[\r]c")},
        {QStringLiteral("\r\n\r\n\r\n"), 3, 3, QStringLiteral("\r\n[\r\n\r\n]")},
        {QStringLiteral("x\U0001F600y"), 2, 1,
         QString(QStringLiteral("x\U0001F600y")).insert(3, u']').insert(2, u'[')},
    };
    for (const Row &row : rows) {
        box->setText(row.text);
        select(*box, row.start, row.length);
        EXPECT_EQ(picture(), row.shown);
    }
}

TEST_P(TextBoxContract, WritingTextOrStartClearsTheSelection) {
    box->setText(QStringLiteral("abcdef"));
    select(*box, 2, 3);
    box->setSelStart(3);
    EXPECT_EQ(picture(), QStringLiteral("abc[]def"));
    select(*box, 2, 3);
    box->setText(QStringLiteral("abcdef"));
    EXPECT_EQ(picture(), QStringLiteral("[]abcdef"));
    select(*box, 2, 3);
    box->setText(QStringLiteral("other"));
    EXPECT_EQ(picture(), QStringLiteral("[]other"));
}

TEST_P(TextBoxContract, ReportsChangesAndNothingElse) {
    box->setText(QStringLiteral("ab\r\n\ncd"));
    EXPECT_EQ(changes, 1);
    box->setText(box->Text());
    select(*box, 1, 3);
    box->setSelText(box->SelText());
    EXPECT_EQ(picture(), QStringLiteral("ab\r\n[]\ncd"));
    box->setSelText({});
    EXPECT_EQ(changes, 1);
    box->setSelText(QStringLiteral("x"));
    EXPECT_EQ(changes, 2);
    box->setText({});
    box->setText({});
    EXPECT_EQ(changes, 3);
}

TEST_P(TextBoxContract, JoinsLineEndsThatComeTogether) {
    box->setText(QStringLiteral("a\rX\nb"));
    select(*box, 2, 1);
    box->setSelText({});
    EXPECT_EQ(picture(), QStringLiteral("a\r\n[]b"));
    box->setSelStart(2);
    EXPECT_EQ(picture(), QStringLiteral("a[]\r\nb"));
    box->setText(QStringLiteral("\nb"));
    box->setSelText(QStringLiteral("a\r"));
    EXPECT_EQ(picture(), QStringLiteral("a\r\n[]b"));
    box->setText(QStringLiteral("a\r"));
    box->setSelStart(2);
    box->setSelText(QStringLiteral("\nb"));
    EXPECT_EQ(picture(), QStringLiteral("a\r\nb[]"));
}

TEST_P(TextBoxContract, CutsAtItsCapacity) {
    EXPECT_EQ(box->capacity(), textLimit);
    box->setText(QString(70000, u'x'));
    EXPECT_EQ(box->length(), textLimit);
    box->setCapacity(6);
    box->setText(QStringLiteral("12345\r\n8"));
    EXPECT_EQ(box->Text(), QStringLiteral("12345\r"));
    box->setText(QStringLiteral("1234"));
    select(*box, 1, 2);
    box->setSelText(QStringLiteral("abcdefgh"));
    EXPECT_EQ(picture(), QStringLiteral("1abcd[]4"));
    box->setSelText(QStringLiteral("more"));
    EXPECT_EQ(picture(), QStringLiteral("1abcd[]4"));
    EXPECT_EQ(changes, 4);
    // A capacity below the length takes nothing away and lets nothing in.
    box->setCapacity(3);
    EXPECT_EQ(box->length(), 6);
    box->setSelText(QStringLiteral("x"));
    EXPECT_EQ(box->Text(), QStringLiteral("1abcd4"));
    select(*box, 0, 5);
    box->setSelText(QStringLiteral("xyz"));
    EXPECT_EQ(box->Text(), QStringLiteral("xy4"));
}

TEST_P(TextBoxContract, ChangeHandlersMayEdit) {
    box->onChange = [this] {
        if (++changes == 1)
            box->setText(QStringLiteral("second\r\n"));
    };
    box->setSelText(QStringLiteral("first"));
    EXPECT_EQ(box->Text(), QStringLiteral("second\r\n"));
    EXPECT_EQ(changes, 2);
}

} // namespace
} // namespace tolvo
