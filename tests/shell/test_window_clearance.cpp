// SPDX-License-Identifier: MIT
#include "shell/window_clearance.h"

#include <gtest/gtest.h>

namespace tolvo::test {
namespace {

const QRect screen(0, 0, 1280, 1000);

TEST(WindowClearance, ComesUpBesideTheTextOrAtItsEdge) {
    struct Row {
        const char *name;
        QRect main, text, line;
        QPoint corner;
    };
    const Row rows[] = {
        {"right of the window", {0, 0, 700, 600}, {250, 60, 440, 400}, {250, 60, 440, 18}, {700, 60}},
        {"left of it", {600, 0, 680, 600}, {800, 60, 440, 400}, {800, 60, 440, 18}, {100, 60}},
        {"below it", {200, 0, 900, 600}, {400, 60, 690, 400}, {400, 60, 690, 18}, {400, 600}},
        {"lower edge of the text",
         {200, 100, 900, 800},
         {400, 160, 690, 600},
         {400, 160, 690, 18},
         {590, 510}},
        {"upper edge", {200, 100, 900, 800}, {400, 160, 690, 600}, {400, 700, 690, 18}, {590, 160}},
        {"above a line in a short text",
         {200, 300, 900, 690},
         {400, 400, 690, 200},
         {400, 480, 690, 18},
         {590, 226}},
        {"all of the screen", screen, {0, 0, 1280, 1000}, {0, 980, 1280, 18}, {780, 0}},
    };
    for (const auto &[name, main, text, line, corner] : rows) {
        const QRect area(cornerBesideText({500, 250}, {main, text, line, screen}), QSize(500, 250));
        EXPECT_EQ(area.topLeft().x(), corner.x()) << name;
        EXPECT_EQ(area.topLeft().y(), corner.y()) << name;
        EXPECT_TRUE(screen.contains(area) && !area.intersects(line)) << name;
    }
}

TEST(WindowClearance, StaysOnTheScreen) {
    EXPECT_EQ(cornerOnScreen({900, 700, 300, 200}, screen), QPoint(900, 700));
    EXPECT_EQ(cornerOnScreen({1000, 900, 300, 200}, screen), QPoint(980, 800));
    EXPECT_EQ(cornerOnScreen({-10, 500, 300, 2000}, screen), QPoint(0, 0));
}

TEST(WindowClearance, StepsAsideByTheShortestWay) {
    struct Row {
        const char *name;
        QRect window, hit;
        std::optional<QPoint> corner;
    };
    const Row rows[] = {
        {"free", {100, 100, 300, 200}, {100, 300, 50, 18}, {}},
        {"up", {100, 100, 300, 200}, {200, 290, 50, 18}, QPoint(100, 86)},
        {"down", {100, 100, 300, 200}, {200, 95, 50, 18}, QPoint(100, 117)},
        {"left", {500, 100, 300, 200}, {780, 190, 60, 18}, QPoint(476, 100)},
        {"right", {500, 100, 300, 200}, {480, 190, 60, 18}, QPoint(544, 100)},
        {"not up from the upper edge", {400, 0, 300, 200}, {500, 150, 80, 18}, QPoint(400, 172)},
        {"nowhere", {0, 0, 1280, 900}, {500, 450, 80, 18}, {}},
    };
    for (const auto &[name, window, hit, corner] : rows) {
        const auto found = cornerAside(window, hit, screen);
        EXPECT_EQ(found, corner) << name << (found ? found->x() : -1) << " " << (found ? found->y() : -1);
    }
}

} // namespace
} // namespace tolvo::test
