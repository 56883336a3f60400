// SPDX-License-Identifier: MIT
#include "base/CParams.h"
#include "base/failure.h"
#include "base/paths.h"
#include "base/strings.h"
#include "tests/base/print.h"

#include <QBuffer>
#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(Strings, areParsedFieldByField) {
    QString rest = QStringLiteral(" a , b, ");
    EXPECT_EQ(parse(rest, u','), u"a");
    EXPECT_EQ(rest, u" b, ");
    EXPECT_EQ(parse(rest, u','), u"b");
    EXPECT_EQ(parse(rest, u','), u"");
    EXPECT_EQ(rest, u"");
    EXPECT_EQ(parse(rest, u','), u"");
    QString longest = QString(32766, u'x') + u',';
    EXPECT_EQ(parse(longest, u',').size(), 32766);
    QString tooLong = QString(32767, u'x') + u',';
    EXPECT_THROW((void)parse(tooLong, u','), Failure);
}

TEST(Strings, areTrimmed) {
    const QStringView text = u" \t\u00A0a \r\n ";
    EXPECT_EQ(trimBlanks(text), QStringView(u"\t\u00A0a \r\n"));
    EXPECT_EQ(leftTrimWhiteSpace(text), QStringView(u"a \r\n "));
    EXPECT_EQ(rightTrimWhiteSpace(text), QStringView(u" \t\u00A0a"));
    EXPECT_EQ(trimWhiteSpace(u"\u2003a\v"), QStringView(u"\u2003a\v"));
    EXPECT_TRUE(trimWhiteSpace(u" \r\n").isEmpty());
    EXPECT_EQ(StripTrailingEOL(u"a\r\n\n\r"), QStringView(u"a"));
    QString buffer = QString::fromUtf16(u"ab\0cd", 5);
    EXPECT_EQ(CToBStr(buffer), u"ab");
}

TEST(Strings, areCutByPosition) {
    EXPECT_EQ(MidOrEmpty(u"abc", 2, 9), QStringView(u"bc"));
    EXPECT_EQ(MidOrEmpty(u"abc", 1, 1), QStringView(u"a"));
    for (const qsizetype start : {-1, 0, 4})
        EXPECT_TRUE(MidOrEmpty(u"abc", start, 2).isEmpty());
    EXPECT_TRUE(MidOrEmpty(u"abc", 1, -1).isEmpty());
    EXPECT_EQ(lastIndexOf(u"aaa", u"aa", Qt::CaseSensitive), 2);
    EXPECT_EQ(lastIndexOf(u"aBab", u"AB", Qt::CaseInsensitive), 3);
    EXPECT_EQ(lastIndexOf(u"abc", u"x", Qt::CaseSensitive), 0);
    EXPECT_EQ(IndexInList(QStringLiteral("b"), {QStringLiteral("a"), QStringLiteral("b")}), 1);
    EXPECT_EQ(IndexInList(QStringLiteral("B"), {QStringLiteral("b")}), -1);
}

TEST(Strings, areSplitAtCrLfAlone) {
    const auto split = [](const char16_t *text) {
        QStringList lines;
        for (const QStringView line : splitLines(text))
            lines.append(line.toString());
        return lines;
    };
    EXPECT_TRUE(split(u"").isEmpty());
    EXPECT_EQ(split(u"a\r\n"), QStringList({QStringLiteral("a"), QString(QLatin1StringView(""))}));
    EXPECT_EQ(split(u"a\nb\rc\r\r\nd"), QStringList({QStringLiteral("a\nb\rc\r"), QStringLiteral("d")}));
}

TEST(Strings, fillTemplates) {
    EXPECT_EQ(FillTemplate(QStringLiteral("%1 of %0, %10"), {QStringLiteral("a"), QStringLiteral("b")}),
              u"b of a, b0");
    const QString one = QStringLiteral("one %1");
    const QString many = QStringLiteral("%1 in %2");
    EXPECT_EQ(FillCountedTemplate(one, many, true, {QStringLiteral("5")}), u"one %1");
    EXPECT_EQ(FillCountedTemplate(one, many, false, {QStringLiteral("5"), QStringLiteral("x")}), u"5 in x");
}

TEST(Params, areThePairsOfASettingsString) {
    struct Case {
        const char *settings;
        const char *key;
        const char *value;
    };
    for (const Case &c : {Case{"Mode=1, Find=abc, MatchCase=0", "Find", "abc"},
                          {"a=1, a=2", "a", "1"},
                          {"a = 1", "a", " 1"},
                          {"a=1,b=2", "a", "1,b=2"},
                          {"a=1 , b=2", "a", "1 "},
                          {"Find=a, b, MatchCase=1", "b", ""},
                          {"Find=a, b, MatchCase=1", "MatchCase", "1"},
                          {"Find=x=y", "Find", "x=y"},
                          {"Find=\"q\"", "Find", "\"q\""},
                          {"Find=a, MatchCase=1, MatchCase=0", "MatchCase", "1"},
                          {"Mode=1", "mode", ""},
                          {"", "Mode", ""}})
        EXPECT_EQ(CParams(QString::fromLatin1(c.settings)).arg(QString::fromLatin1(c.key)),
                  QLatin1StringView(c.value))
            << c.settings;
    EXPECT_TRUE(CParams(QStringLiteral("Find=, b")).contains(QStringLiteral("b")));
    EXPECT_FALSE(CParams(QStringLiteral("Find=, b")).contains(QStringLiteral("c")));
}

TEST(Paths, areTakenApart) {
    EXPECT_EQ(sAppPath(QStringLiteral("C:\\x"), u'\\'), u"C:\\x\\");
    EXPECT_EQ(sAppPath(QStringLiteral("C:\\"), u'\\'), u"C:\\");
    EXPECT_EQ(fnLeaf(QStringLiteral("C:\\a\\b.txt")), u"b.txt");
    EXPECT_EQ(fnLeaf(QStringLiteral("b.txt")), u"b.txt");
    for (const auto &[name, extension] :
         std::initializer_list<std::pair<const char16_t *, const char16_t *>>{{u"report.final.txt", u"txt"},
                                                                              {u"readme", u""},
                                                                              {u"a.txt|b", u"txt"},
                                                                              {u"a.", u""},
                                                                              {u"a.b c", u"b"},
                                                                              {u"a.\"b", u""}})
        EXPECT_EQ(fnExtension(name), QStringView(extension));
    QByteArray bytes("\n  \n one \r\n\ntwo");
    QBuffer file(&bytes);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(fnReadLine(file), u"one");
    EXPECT_EQ(fnReadLine(file), u"two");
    EXPECT_EQ(fnReadLine(file), u"");
}

} // namespace
