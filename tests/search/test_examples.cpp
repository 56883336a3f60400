// SPDX-License-Identifier: MIT
// The rows of examples.txt, which says what they are.
#include "tests/search/search_world.h"
#include "tests/support/examples.h"

namespace tolvo::test {

namespace {

class Examples : public SearchWorld {
  protected:
    void finds(const QString &section, const QStringList &sides) {
        const auto has = [&](char16_t option) { return sides[2].contains(option); };
        bool fromStart = has(u's');
        directions.clear();
        if (section == u"SimpleSearch") {
            const bool found = search.SimpleSearch(sides[1], has(u'x'), has(u'u'), has(u'd'), fromStart,
                                                   has(u'c'), has(u'w'));
            EXPECT_EQ(found, !sides[1].isEmpty() && sides[4].isEmpty());
            EXPECT_EQ(fromStart, !sides[4].isEmpty() || has(u's'));
        } else {
            EXPECT_EQ(section, u"RegExpSearch");
            search.RegExpSearch(box.Text(), sides[1], has(u'u'), fromStart, false);
        }
        QString letters;
        for (const SearchDirection direction : directions)
            letters += direction == SearchDirection::Down ? u'd' : u's';
        EXPECT_EQ(letters, sides[5]);
    }
    void replaces(const QString &section, const QStringList &sides) {
        const auto has = [&](char16_t option) { return sides[3].contains(option); };
        int changes = 0;
        box.onChange = [&] { ++changes; };
        if (section == u"SimpleReplace")
            search.SimpleReplace(sides[1], sides[2], has(u'x'), has(u'u'), has(u'd'), has(u's'), has(u'c'),
                                 has(u'w'), has(u'm'), has(u'a'));
        else if (section == u"SimpleReplaceAll")
            search.SimpleReplaceAll(sides[1], sides[2], has(u'x'), has(u'c'), has(u'w'), has(u'm'), false);
        else if (section == u"RegExpReplaceAll")
            search.RegExpReplaceAll(sides[1], sides[2], false, has(u'm'), false);
        else
            search.RegExpReplace(sides[1], sides[2], has(u'u'), has(u's'), false, has(u'm'), has(u'a'));
        box.onChange = {};
        EXPECT_LE(changes, 1);
    }
};

TEST_F(Examples, comeOutAsTheFileSays) {
    forEachExample("/tests/search/examples.txt", [this](const QString &section, const QStringList &sides) {
        const bool isReplacement = section.contains(u"Replace");
        test::show(box, sides[0]);
        isReplacement ? replaces(section, sides) : finds(section, sides);
        EXPECT_EQ(picture(), sides[isReplacement ? 4 : 3]);
        EXPECT_EQ(said(), QString(sides[isReplacement ? 5 : 4]).replace(u'|', QStringLiteral("\r\n")));
    });
}

} // namespace

} // namespace tolvo::test
