// SPDX-License-Identifier: MIT
#include "base/conversions.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "tests/base/print.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>

using namespace tolvo;

namespace {

int numberOfFailure(const std::function<void()> &action) {
    try {
        action();
    } catch (const Failure &failure) {
        return failure.number();
    }
    return 0;
}

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
    EXPECT_TRUE(IsNumber(u"0129"));
    for (const char16_t *text : {u"", u"12a", u"-1", u"1.0", u"\u0663"})
        EXPECT_FALSE(IsNumber(text));
    EXPECT_TRUE(IsNumber(QString(32767, u'1')));
    EXPECT_EQ(numberOfFailure([] { (void)IsNumber(QString(32768, u'1')); }), failureNumber::overflow);
    for (const char16_t *text : {u"", u"ff", u"0A9f"})
        EXPECT_TRUE(IsHex(text));
    EXPECT_FALSE(IsHex(u"0g"));
}

TEST(Numbers, fromHexadecimalDigits) {
    const auto value = [](QString text) { return HexToNumber(text); };
    EXPECT_EQ(value(QStringLiteral("ff")), 255);
    EXPECT_EQ(value(QStringLiteral("00e9")), 233);
    EXPECT_EQ(value(QString()), 0);
    EXPECT_EQ(value(QStringLiteral("1G")), 0);
    EXPECT_EQ(value(QStringLiteral("7FFFFFFF")), 2147483647);
    EXPECT_EQ(numberOfFailure([&] { (void)value(QStringLiteral("80000000")); }), failureNumber::overflow);
    QString text = QStringLiteral("a1");
    (void)HexToNumber(text);
    EXPECT_EQ(text, u"A1");
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
    EXPECT_EQ(groupedNumber(65535), u"65,535");
    EXPECT_EQ(groupedNumber(-1234567), u"-1,234,567");
    EXPECT_EQ(groupedNumber(999), u"999");
    EXPECT_EQ(numberText(12), u"12");
    EXPECT_EQ(numberText(0.5), u"0.5");
    EXPECT_EQ(numberText(1000000), u"1000000");
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
    QList<int> seen(6, 0);
    for (int i = 0; i < 1000; ++i)
        ++seen[RandomInRange(2, 5)];
    EXPECT_EQ(seen.at(0) + seen.at(1), 0);
    for (int number = 2; number <= 5; ++number)
        EXPECT_GT(seen.at(number), 100);
}

TEST(Conversions, takeNumbersStrictly) {
    EXPECT_EQ(toInteger(QStringLiteral(" -12 ")), -12);
    EXPECT_EQ(toInteger(QStringLiteral("2.5")), 2);
    EXPECT_EQ(toInteger(QStringLiteral("1e3")), 1000);
    EXPECT_EQ(toInteger(QStringLiteral("-2147483648")), -2147483647 - 1);
    for (const char *text : {"2147483648", "-2147483649", "1e999"})
        EXPECT_EQ(numberOfFailure([text] { (void)toInteger(QString::fromLatin1(text)); }),
                  failureNumber::overflow)
            << text;
    for (const char *text : {"", " ", "x", "12x", "1 2", "nan", "inf", "True", "0x10"})
        EXPECT_EQ(numberOfFailure([text] { (void)toInteger(QString::fromLatin1(text)); }),
                  failureNumber::typeMismatch)
            << text;
}

TEST(Conversions, takeFlagsAndDatesStrictly) {
    for (const char *text : {"True", "TRUE", " true ", "1", "-1", "0.5"})
        EXPECT_TRUE(toFlag(QString::fromLatin1(text))) << text;
    for (const char *text : {"False", "false", "0", "0.0"})
        EXPECT_FALSE(toFlag(QString::fromLatin1(text))) << text;
    for (const char *text : {"", "yes", "T"})
        EXPECT_EQ(numberOfFailure([text] { (void)toFlag(QString::fromLatin1(text)); }),
                  failureNumber::typeMismatch);
    EXPECT_TRUE(toFlag(flagWord(true)) && toFlag(flagDigit(true)));
    EXPECT_FALSE(toFlag(flagWord(false)) || toFlag(flagDigit(false)));
    const QString date = QStringLiteral("2024-02-29 23:59:01");
    EXPECT_EQ(dateText(toDate(date)), date);
    for (const char *text : {"2023-02-29 00:00:00", "2024-02-29", ""})
        EXPECT_EQ(numberOfFailure([text] { (void)toDate(QString::fromLatin1(text)); }),
                  failureNumber::typeMismatch);
}

} // namespace
