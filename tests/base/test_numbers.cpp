// SPDX-License-Identifier: MIT
#include "base/conversions.h"
#include "base/numbers.h"
#include "tests/support/failures.h"

#include <QSet>
#include <cmath>

using namespace tolvo;

namespace {

TEST(Numbers, valueOfATextsFront) {
    struct Case {
        const char16_t *text;
        double value;
    };
    for (const Case &c :
         {Case{u"12 34", 1234}, {u"3,000", 3},   {u"1E3", 1000}, {u"4 d6", 4e6}, {u" \t\n-1 . 5x", -1.5},
          {u"+.5", 0.5},        {u"1.2.3", 1.2}, {u"1e", 1},     {u"1e+", 1},    {u"1e-2", 0.01},
          {u"&HfF", 255},       {u"&o17 8", 15}, {u"&x", 0},     {u"-&H10", 0},  {u"--1", 0},
          {u"e5", 0},           {u".", 0},       {u"-", 0},      {u"\u0663", 0}, {u"", 0}})
        EXPECT_DOUBLE_EQ(ValueOf(c.text), c.value) << shown(c.text);
    EXPECT_TRUE(std::isinf(ValueOf(u"1e999")));
    EXPECT_EQ(ValueOf(u"1e-999"), 0);
}

TEST(Numbers, areTestedDigitByDigit) {
    EXPECT_TRUE(IsNumber(u"0129") && IsNumber(QString(32767, u'1')));
    for (const char16_t *text : {u"", u"12a", u"-1", u"1.0", u"\u0663"})
        EXPECT_FALSE(IsNumber(text));
    expectFailure(failureNumber::overflow, [] { (void)IsNumber(QString(32768, u'1')); });
    EXPECT_TRUE(IsHex(u"") && IsHex(u"0A9f"));
    EXPECT_FALSE(IsHex(u"0g"));
    for (const auto &[digits, value] :
         {std::pair("fF", 255), {"00e9", 233}, {"", 0}, {"1G", 0}, {"7FFFFFFF", 2147483647}}) {
        QString text = digits;
        EXPECT_EQ(HexToNumber(text), value) << digits;
        EXPECT_EQ(text, text.toUpper());
    }
    QString tooLarge = "80000000";
    expectFailure(failureNumber::overflow, [&] { (void)HexToNumber(tooLarge); });
}

TEST(Numbers, asNumeralsAndLetters) {
    for (const auto &[number, roman] : std::initializer_list<std::pair<int, const char16_t *>>{
             {0, u"?"}, {1, u"I"}, {4, u"IV"}, {1994, u"MCMXCIV"}, {4999, u"MMMMCMXCIX"}, {5000, u"???"}})
        EXPECT_EQ(ToRoman(number), QStringView(roman));
    for (const auto &[number, letters] : std::initializer_list<std::pair<int, const char16_t *>>{
             {0, u"a"}, {25, u"z"}, {26, u"aa"}, {27, u"ab"}, {701, u"zz"}, {702, u"aaa"}})
        EXPECT_EQ(ToLetters(number), QStringView(letters));
}

TEST(Numbers, asText) {
    for (const auto &[number, text] : {std::pair(999, "999"), {65535, "65,535"}, {-1234567, "-1,234,567"}})
        EXPECT_EQ(groupedNumber(number), text);
    EXPECT_EQ(numberText(0.5) + numberText(1000000), "0.51000000");
}

TEST(Numbers, roundHalfToEvenOnTheDecimalValue) {
    for (const auto &[value, rounded] : std::initializer_list<std::pair<double, double>>{
             {0.5, 0}, {1.5, 2}, {2.5, 2}, {-0.5, 0}, {-1.5, -2}, {2.51, 3}, {7, 7}})
        EXPECT_EQ(roundHalfToEven(value), rounded) << value;
    for (const auto &[value, rounded] : std::initializer_list<std::pair<double, double>>{
             {0.125, 0.12}, {0.375, 0.38}, {1.005, 1.0}, {1.015, 1.02}, {2.345, 2.34}, {1.0 / 3, 0.33}})
        EXPECT_DOUBLE_EQ(roundHalfToEven(value, 2), rounded) << value;
}

TEST(Numbers, atRandomStayInRange) {
    QSet<int> seen;
    for (int i = 0; i < 1000; ++i)
        seen += RandomInRange(2, 5);
    EXPECT_EQ(seen, (QSet<int>{2, 3, 4, 5}));
}

/// All these texts are refused with the same failure.
template <class Convert>
void expectRefused(Convert convert, int failure, std::initializer_list<const char *> texts) {
    for (const char *text : texts)
        expectFailure(
            failure, [&] { (void)convert(QString(text)); },
            failure == failureNumber::typeMismatch ? text : "");
}

TEST(Conversions, areStrict) {
    for (const auto &[text, value] :
         {std::pair(" -12 ", -12), {"2.5", 2}, {"1e3", 1000}, {"-2147483648", -2147483647 - 1}})
        EXPECT_EQ(toInteger(text), value);
    expectRefused(toInteger, failureNumber::overflow, {"2147483648", "-2147483649", "1e999"});
    expectRefused(toInteger, failureNumber::typeMismatch,
                  {"", " ", "x", "12x", "1 2", "nan", "inf", "True", "0x10"});
    for (const char *text : {"True", "TRUE", " true ", "1", "-1", "0.5"})
        EXPECT_TRUE(toFlag(text)) << text;
    for (const char *text : {"False", "false", "0", "0.0"})
        EXPECT_FALSE(toFlag(text)) << text;
    expectRefused(toFlag, failureNumber::typeMismatch, {"", "yes", "T"});
    EXPECT_EQ(dateText(toDate("2024-02-29 23:59:01")), "2024-02-29 23:59:01");
    expectRefused(toDate, failureNumber::typeMismatch, {"2023-02-29 00:00:00", "2024-02-29", ""});
}

} // namespace
