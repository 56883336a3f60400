// SPDX-License-Identifier: MIT
#include "powerbuttons/circular_check.h"
#include "tests/powerbuttons/world.h"

#include <array>

namespace tolvo {
namespace {

using CircularCheck = World;

TEST_F(CircularCheck, findsTheShortestWayBack) {
    // Which buttons each button runs, by number; the question is asked for button 1.
    struct Case {
        QList<QList<int>> runs; // the first is for number 0, which is no button
        int target;
        QList<int> way;
    };
    const std::array cases{
        Case{{}, 2, {}},
        Case{{}, 1, {1}},
        Case{{{}, {}, {1}}, 2, {2, 1}},
        Case{{{}, {}, {3, 4}, {}, {1}}, 2, {2, 4, 1}}, // through a second Action
        Case{{{}, {}, {3}, {2, 4}, {5}, {6}, {7}, {8}, {1}}, 2, {2, 3, 4, 5, 6, 7, 8, 1}},
        Case{{{}, {}, {3}, {4}, {2}}, 2, {}}, // a loop of others
        Case{{{}, {}, {3, 4, 1}, {1}}, 2, {2, 1}},
        Case{{{}, {}, {9, 0, -1, 99}}, 2, {}}, // numbers that are no buttons
        Case{{}, 9, {}},
    };
    for (const Case &row : cases) {
        for (int number = 1; number <= 8; ++number) {
            auto button = std::make_shared<CPowerButton>();
            button->Add(action("ccUPP"));
            for (const int target : row.runs.value(number))
                button->Add(action("pbPBT", QString("PowerButton=%1").arg(target), SettingsFrom::Custom));
            buttons.Add(button, number);
        }
        EXPECT_EQ(findCircle(buttons, row.target, 1).value_or(QList<int>()), row.way);
    }
    EXPECT_EQ(circleMessage({2, 4, 1}),
              "You cannot add PowerButton 2 to this PowerButton, because it contains a reference to "
              "this one.\r\n\r\nThis is PowerButton 1, which contains PowerButton 2, which contains "
              "PowerButton 4, which contains PowerButton 1.\r\n\r\nPlease resolve this problem and try "
              "again.");
}

} // namespace
} // namespace tolvo
