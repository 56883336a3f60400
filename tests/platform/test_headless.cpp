// SPDX-License-Identifier: MIT
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/clipboard_line_ends.h"
#include "platform/kept_free.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {

TEST(ClipboardLineEnds, TextWithoutCrComesInWithCrLfAndGoesOutWithLf) {
    const QString systemEnd = systemLineFeeds ? u"\n"_s : u"\r\n"_s;
    // What comes in, what is taken, what goes out after an edit that appended "\r\n!".
    const std::tuple<QString, QString, QString> rows[] = {
        {{}, {}, systemEnd + u'!'},
        {u"word"_s, u"word"_s, u"word"_s + systemEnd + u'!'},
        {u"a\nb\n\n"_s, u"a\r\nb\r\n\r\n"_s, u"a\nb\n\n\n!"_s},
        {u"a\r\nb"_s, u"a\r\nb"_s, u"a\r\nb\r\n!"_s},
        {u"a\rb\nc"_s, u"a\rb\nc"_s, u"a\rb\nc\r\n!"_s},
    };
    ClipboardLineEnds rule; // each intake settles anew, a paste settles nothing
    for (const auto &[foreign, taken, given] : rows) {
        EXPECT_EQ(rule.takeIn(foreign), taken);
        EXPECT_EQ(ClipboardLineEnds::comeIn(u"a\nb"_s), u"a\r\nb"_s);
        EXPECT_EQ(rule.goOut(taken + u"\r\n!"_s), given);
    }
}

TEST(Boxes, AreSaidLineByLineAndAnsweredByNo) {
    std::FILE *stream = std::tmpfile();
    ConsoleBoxes boxes(u"tolvo-pipe: "_s, stream);
    EXPECT_EQ(boxes.show({.text = u"Caf\u00E9\r\n\r\nend"_s}), BoxAnswer::Ok);
    EXPECT_EQ(boxes.show({.text = u"Go on?"_s, .buttons = BoxButtons::YesNo}), BoxAnswer::No);
    std::rewind(stream);
    char said[100] = {};
    (void)std::fread(said, 1, sizeof said - 1, stream);
    std::fclose(stream);
    EXPECT_STREQ(said, "tolvo-pipe: Caf\xC3\xA9\ntolvo-pipe: \ntolvo-pipe: end\ntolvo-pipe: Go on?\n");
    EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST(KeptFree, PlacesAWindowBesideWhatMustStayVisible) {
    const QRect screen(0, 0, 1000, 800);
    const QSize size(200, 100);
    const struct {
        QList<QRect> areas;
        QPoint corner;
    } rows[] = {
        {{{100, 50, 600, 500}}, {708, 50}},                    // right
        {{{300, 50, 600, 500}}, {92, 50}},                     // left
        {{{100, 50, 800, 500}}, {100, 558}},                   // below
        {{{100, 250, 800, 500}}, {100, 142}},                  // above
        {{{100, 750, 600, 500}}, {708, 700}},                  // within the screen
        {{{50, 50, 900, 700}, {300, 50, 650, 700}}, {0, 50}},  // over the rest of the window
        {{{0, 0, 1000, 800}, {50, 50, 900, 700}}, {800, 700}}, // nowhere
        {{}, {800, 700}},
    };
    for (const auto &row : rows)
        EXPECT_TRUE(placeBeside(row.areas, size, screen) == row.corner)
            << writtenAreas(row.areas).toStdString();
    const QList<QRect> areas{{-5, 2, 3, 4}, {5, 6, 7, 8}};
    EXPECT_TRUE(readAreas(writtenAreas(areas)) == areas);
    EXPECT_TRUE(readAreas(u"1 2 3").isEmpty());
    EXPECT_TRUE(readAreas(u"a b c d").isEmpty());
}

} // namespace tolvo
