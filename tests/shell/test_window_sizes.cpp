// SPDX-License-Identifier: MIT
#include "shell/window_sizes.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(WindowSizes, areWrittenAndReadByName) {
    const WindowSizes sizes{{"dlgSpelling", {800, 600}}, {"frmStats", {300, 200}}};
    EXPECT_EQ(written(sizes), "dlgSpelling 800x600|frmStats 300x200");
    EXPECT_EQ(readSizes(written(sizes)), sizes);
    EXPECT_TRUE(readSizes({}).isEmpty());
    EXPECT_EQ(readSizes("frmStats 0x200|800x600|dlgSpelling 800x600|a 9x|b -1x4|c 123456x4"),
              (WindowSizes{{"dlgSpelling", {800, 600}}}));
}

TEST(WindowSizes, giveWayToContentsAndScreen) {
    const QSize screen(792, 444);
    struct Row {
        QSize remembered;
        QSize contents;
        QSize size;
    };
    for (const Row &row : {Row{{500, 400}, {300, 200}, {500, 400}}, Row{{100, 400}, {300, 200}, {300, 400}},
                           Row{{1500, 400}, {300, 200}, {792, 400}}, Row{{500, 400}, {900, 600}, {792, 444}}})
        EXPECT_EQ(allowedSize(row.remembered, row.contents, screen), row.size);
}

} // namespace
