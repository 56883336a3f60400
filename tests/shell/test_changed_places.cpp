// SPDX-License-Identifier: MIT
#include "shell/changed_places.h"
#include "tests/support/examples.h"
#include "tests/support/pictures.h"

#include <gtest/gtest.h>
#include <random>

using namespace Qt::StringLiterals;
using namespace tolvo;
using namespace tolvo::test;

namespace {

/// The text after, with a pair of square brackets around each place.
QString picture(const QString &before, const QString &after) {
    QString result;
    qsizetype done = 0;
    for (const ChangedPlace &place : changedPlaces(before, after)) {
        result += after.mid(done, place.start - done) + u'[' + after.mid(place.start, place.length) + u']';
        done = place.start + place.length;
    }
    result += after.mid(done);
    return result.replace(u"\r\n"_s, u"|"_s);
}

QString withPlaces(const QString &before, const QString &after, const QList<ChangedPlace> &places) {
    QString result;
    qsizetype done = 0;
    for (const ChangedPlace &place : places) {
        EXPECT_EQ(place.start, result.size() + place.oldStart - done);
        result += QStringView(before).sliced(done, place.oldStart - done);
        result += QStringView(after).sliced(place.start, place.length);
        done = place.oldStart + place.oldLength;
    }
    return result + before.mid(done);
}

TEST(ChangedPlaces, areFoundByLinesWordsAndCharacters) {
    forEachExample("/tests/shell/change_examples.txt", [](const QString &, const QStringList &row) {
        EXPECT_EQ(picture(readPicture(row[0]).text, readPicture(row[1]).text), row[2]);
    });
    EXPECT_EQ(placesText(1), u"1 place changed"_s);
    EXPECT_EQ(placesText(1234), u"1,234 places changed"_s);
}

TEST(ChangedPlaces, makeTheNewTextOfTheOldOne) {
    std::mt19937 random(5);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const QStringList pieces{u"a"_s, u"B"_s, u" "_s, u"\r\n"_s, u"word"_s, u"\U0001F600"_s, u"."_s, u"\n"_s};
    for (int round = 0; round < 3000; ++round) {
        QStringList before;
        for (int count = below(60); count > 0; --count)
            before += pieces[below(static_cast<int>(pieces.size()))] +
                      (below(3) ? QString() : QString::number(below(40)));
        QStringList after = before;
        for (int edits = below(12); edits > 0; --edits) {
            const int at = below(static_cast<int>(after.size()) + 1);
            if (below(2) == 0 || at == after.size())
                after.insert(at, pieces[below(static_cast<int>(pieces.size()))]);
            else if (below(2) == 0)
                after.removeAt(at);
            else
                after.swapItemsAt(at, 0);
        }
        const QString old = before.join(QString());
        const QString fresh = after.join(QString());
        ASSERT_EQ(withPlaces(old, fresh, changedPlaces(old, fresh)), fresh) << old.toStdString();
    }
}

/// Texts that a naive comparison takes minutes for.
TEST(ChangedPlaces, ofLongTextsAreRightToo) {
    const auto filled = [](const QString &piece) { return piece.repeated(65535 / piece.size()); };
    QString shuffled;
    for (int i = 0; i < 9000; ++i)
        shuffled += QString::number(i * 7919 % 9001) + u' ';
    QString sorted;
    for (int i = 0; i < 9000; ++i)
        sorted += QString::number(i) + u' ';
    const std::pair<QString, QString> rows[] = {
        {filled(u"a"_s), filled(u"b"_s)},
        {filled(u"a"_s), filled(u"ab"_s)},
        {filled(u"ab"_s), filled(u"ba"_s) + u'x'},
        {filled(u"\r\n"_s), filled(u"\n"_s)},
        {filled(u"a b "_s), filled(u"a  b "_s)},
        {shuffled, sorted},
        {filled(u"a\r\n"_s), filled(u"a\r\n\r\n"_s)},
    };
    for (const auto &[before, after] : rows)
        EXPECT_EQ(withPlaces(before, after, changedPlaces(before, after)), after);
}

} // namespace
