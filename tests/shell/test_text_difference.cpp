// SPDX-License-Identifier: MIT
#include "shell/text_difference.h"
#include "tests/support/User.h"
#include "tests/support/print.h"

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
}

} // namespace
