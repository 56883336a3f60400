// SPDX-License-Identifier: MIT
#include "shell/text_difference.h"
#include "shell/word_difference.h"
#include "tests/support/User.h"
#include "tests/support/print.h"

#include <QRegularExpression>
#include <random>

using namespace tolvo;
using namespace tolvo::test;
using namespace Qt::StringLiterals;

namespace {

QString lines(QString picture) {
    return picture.replace(u'|', u"\r\n"_s);
}

TEST(TextDifference, marksLines) {
    const QString rows[][3] = {
        {u"a|b"_s, u"a|c"_s, u"  a|- b|+ c"_s},
        {u"a"_s, u""_s, u"- a|+ "_s},
        {u"a|b|c"_s, u"c|a|b"_s, u"+ c|  a|  b|- c"_s},
        {u"x|x|a|x"_s, u"x|a|x|x|y"_s, u"  x|- x|  a|  x|+ x|+ y"_s},
        {u"a\nb|c"_s, u"b|a\nb"_s, u"+ b|  a\nb|- c"_s},
    };
    for (const auto &[before, after, difference] : rows)
        EXPECT_EQ(lineDifference(lines(before), lines(after)), lines(difference)) << before.toStdString();
}

TEST(TextDifference, holdsBothTexts) {
    std::mt19937 random{20261123};
    const auto text = [&] {
        QStringList some;
        for (auto count = random() % 12 + 1; count > 0; --count)
            some += QString(QChar(u'a' + static_cast<int>(random() % 6)));
        return some.join(u"\r\n");
    };
    const auto side = [](const QString &difference, QChar mark) {
        QStringList some;
        for (const QString &line : difference.split(u"\r\n"_s)) {
            if (line[0] == u' ' || line[0] == mark)
                some += line.sliced(2);
        }
        return some.join(u"\r\n");
    };
    for (int i = 0; i < 2000; ++i) {
        const QString before = text();
        const QString after = text();
        const QString difference = lineDifference(before, after);
        EXPECT_EQ(side(difference, u'-'), before) << shown(difference);
        EXPECT_EQ(side(difference, u'+'), after) << shown(difference);
    }
}

TEST(WordDifference, marksWords) {
    const QString rows[][3] = {
        {u"some tea"_s, u"more tea"_s, u"[-some-]{+more+} tea"_s},
        {u"tea"_s, u""_s, u"[-tea-]"_s},
        {u""_s, u"té 2"_s, u"{+té 2+}"_s},
        {u"a b a c"_s, u"a c"_s, u"a [-b a -]c"_s},
        {u"a|b"_s, u"a b"_s, u"a[-|-]{+ +}b"_s},
        {u"tea tea|milk|tea tea"_s, u"tea|milk|tea"_s, u"tea[- tea-]|milk|tea[- tea-]"_s},
        {u"one two three"_s, u"two three one"_s, u"[-one -]two three{+ one+}"_s},
        {u"(x, x)"_s, u"[x x]"_s, u"[-(-]{+[+}x[-,-] x[-)-]{+]+}"_s},
    };
    for (const auto &[before, after, difference] : rows)
        EXPECT_EQ(wordDifference(lines(before), lines(after)), lines(difference)) << before.toStdString();
}

TEST(WordDifference, holdsBothTexts) {
    std::mt19937 random{20261123};
    const QStringList some = {u"a"_s,  u"b"_s,    u"tea"_s, u"milk"_s,       u" "_s, u" "_s,
                              u", "_s, u"\r\n"_s, u"\r"_s,  u"\U0001F600"_s, u"é"_s, u"e\u0301"_s};
    const auto text = [&] {
        QString words;
        for (auto count = random() % 30; count > 0; --count)
            words += some.at(static_cast<qsizetype>(random() % static_cast<unsigned>(some.size())));
        return words;
    };
    const QRegularExpression removed(u"\\[-(.*?)-\\]"_s, QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpression added(u"\\{\\+(.*?)\\+\\}"_s, QRegularExpression::DotMatchesEverythingOption);
    for (int i = 0; i < 2000; ++i) {
        const QString before = text();
        const QString after = text();
        const QString difference = wordDifference(before, after);
        EXPECT_EQ(QString(difference).remove(added).replace(removed, u"\\1"_s), before) << shown(difference);
        EXPECT_EQ(QString(difference).remove(removed).replace(added, u"\\1"_s), after) << shown(difference);
    }
}

TEST(TextDifference, comparesWithTheClipboard) {
    User user("a|b«»|c");
    const auto sees = [&](const QString &clipboard, const char *picture, const char *status) {
        user.headless.clipboard.text = clipboard;
        user.runs("chDIF");
        user.sees(picture, status);
    };
    sees({}, "a|b«»|c", "There is no text on the clipboard");
    sees(lines(u"a|b|c"_s), "a|b«»|c", "The text is the same as that of the clipboard");
    sees(lines(u"a|x|c"_s), "«»  a|- x|+ b|  c",
         "- lines are only on the clipboard, + lines only in the text");

    user.startsWith("a «b» c");
    user.headless.clipboard.text = u"x"_s;
    user.runs("chDIW");
    user.sees("a «[-x-]{+b+}» c", "[-words-] are only on the clipboard, {+words+} only in the text");
}

} // namespace
