// SPDX-License-Identifier: MIT
#include "base/CParams.h"
#include "base/paths.h"
#include "base/strings.h"
#include "tests/support/failures.h"

#include <QBuffer>

using namespace tolvo;
using namespace Qt::StringLiterals;

namespace {

TEST(Strings, areParsedFieldByField) {
    QString rest = u" a , b, "_s;
    EXPECT_EQ(parse(rest, u','), u"a");
    EXPECT_EQ(rest, u" b, ");
    EXPECT_EQ(parse(rest, u','), u"b");
    EXPECT_EQ(parse(rest, u','), u"");
    EXPECT_EQ(rest, u"");
    EXPECT_EQ(parse(rest, u','), u"");
    QString longest = QString(32766, u'x') + u',';
    EXPECT_EQ(parse(longest, u',').size(), 32766);
    QString tooLong = QString(32767, u'x') + u',';
    expectFailure(failureNumber::overflow, [&] { (void)parse(tooLong, u','); });
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
}

TEST(Strings, areSplitAtCrLfAlone) {
    EXPECT_TRUE(splitLines(u"").isEmpty());
    EXPECT_EQ(splitLines(u"a\r\n"), (QList<QStringView>{u"a", u""}));
    EXPECT_EQ(splitLines(u"a\nb\rc\r\r\nd"), (QList<QStringView>{u"a\nb\rc\r", u"d"}));
}

TEST(Strings, fillTemplates) {
    EXPECT_EQ(FillTemplate("%1 of %0, %10", {"a", "b"}), u"b of a, b0");
    EXPECT_EQ(FillCountedTemplate("one %1", "%1 in %2", true, {"5"}), u"one %1");
    EXPECT_EQ(FillCountedTemplate("one %1", "%1 in %2", false, {"5", "x"}), u"5 in x");
}

TEST(Params, areThePairsOfASettingsString) {
    // A settings string, a key, its value
    for (const char *example :
         {"Mode=1, Find=abc, MatchCase=0→Find→abc", "a=1, a=2→a→1", "a = 1→a→ 1", "a=1,b=2→a→1,b=2",
          "a=1 , b=2→a→1 ", "Find=a, b, MatchCase=1→b→", "Find=a, b, MatchCase=1→MatchCase→1",
          "Find=x=y→Find→x=y", "Find=\"q\"→Find→\"q\"", "Mode=1→mode→", "→Mode→"}) {
        const QStringList parts = QString(example).split(u'→');
        EXPECT_EQ(CParams(parts[0]).arg(parts[1]), parts[2]) << example;
    }
    EXPECT_TRUE(CParams(u"Find=, b"_s).contains(u"b"_s));
    EXPECT_FALSE(CParams(u"Find=, b"_s).contains(u"c"_s));
}

TEST(Paths, areTakenApart) {
    EXPECT_EQ(sAppPath(u"C:\\x"_s, u'\\'), u"C:\\x\\");
    EXPECT_EQ(sAppPath(u"C:\\"_s, u'\\'), u"C:\\");
    EXPECT_EQ(fnLeaf(u"C:\\a\\b.txt"_s), u"b.txt");
    EXPECT_EQ(fnLeaf(u"b.txt"_s), u"b.txt");
    for (const auto &[name, extension] :
         {std::pair(u"report.final.txt", u"txt"), {u"a.txt|b", u"txt"}, {u"a.b c", u"b"}})
        EXPECT_EQ(fnExtension(name), QStringView(extension));
    for (const char16_t *name : {u"readme", u"a.", u"a.\"b"})
        EXPECT_EQ(fnExtension(name), QStringView(u""));
    QByteArray bytes("\n  \n one \r\n\ntwo");
    QBuffer file(&bytes);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(fnReadLine(file), u"one");
    EXPECT_EQ(fnReadLine(file), u"two");
    EXPECT_EQ(fnReadLine(file), u"");
}

} // namespace
