// SPDX-License-Identifier: MIT
#include "shell/window_place.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(WindowPlace, comesBackOnlyIfItLiesOnAScreen) {
    const QList<QRect> screens{{0, 0, 1280, 1000}, {1280, 0, 800, 600}};
    struct Row {
        const char *text;
        std::optional<WindowPlace> place;
    };
    const Row rows[] = {
        {"40,30,900,640", WindowPlace{{40, 30, 900, 640}}},
        {"0,0,1280,1000,max", WindowPlace{{0, 0, 1280, 1000}, true}},
        {"1300,10,700,500", WindowPlace{{1300, 10, 700, 500}}},
        {"1200,10,700,500", {}}, // on two
        {"400,30,900,640", {}},
        {"-10,30,900,640", {}},
        {"2100,30,500,400", {}},
        {"40,30,0,640", {}},
        {"40,30,900", {}},
        {"40,30,900,640,min", {}},
        {"40,30,900,640,max,max", {}},
        {"40,x,900,640", {}},
        {"40,30,99999999999,640", {}},
        {"", {}},
    };
    for (const Row &row : rows) {
        const auto place = placeOnScreens(row.text, screens);
        EXPECT_EQ(place, row.place) << row.text;
        EXPECT_TRUE(!place || written(*place) == row.text) << row.text;
    }
}

TEST(WindowPlace, isKnownByTheKindOfScreen) {
    EXPECT_EQ(screenName({1920, 1080}, 1.5), "1920x1080@1.5");
    EXPECT_EQ(screenName({800, 480}, 2), "800x480@2");
}

TEST(WindowPlace, atFirstSuitsTheScreen) {
    const QSize frame(8, 28);
    struct Row {
        QSize room;
        QSize size;
    };
    const Row rows[] = {{{800, 480}, {792, 452}},
                        {{1024, 768}, {820, 560}},
                        {{1366, 740}, {956, 560}},
                        {{1500, 1000}, {1050, 650}},
                        {{3840, 2160}, {1100, 800}}};
    for (const Row &row : rows)
        EXPECT_EQ(firstSize(row.room, frame), row.size) << row.room.width();
}

} // namespace
