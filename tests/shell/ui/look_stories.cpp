// SPDX-License-Identifier: MIT
// What can be told apart in the pixels of the window's rows, under palettes of many kinds.
#include "shell/ui/power_button_bar.h"
#include "tests/ui/user.h"
#include "widgets/PrimaryButton.h"
#include "widgets/contrast.h"

using namespace tolvo;

namespace {

struct Theme {
    const char *name;
    QPalette palette;
};

QList<Theme> themes() {
    return {{"light", QPalette(QColor(239, 239, 239))},
            {"dark", QPalette(QColor(45, 45, 48))},
            {"black", QPalette(Qt::black)},
            {"dark buttons on light windows", QPalette(QColor(60, 60, 64), QColor(245, 245, 245))}};
}

QImage pixelsOf(QWidget &widget) {
    return widget.grab().toImage();
}

/// The strongest contrast to a ground inside a part of a picture.
double strongest(const QImage &image, const QRect &part, const QColor &ground) {
    double most = 1;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        for (int x = part.left(); x <= part.right(); ++x)
            most = std::max(most, contrast(image.pixelColor(x, y), ground));
    }
    return most;
}

TEST(Look, contrastIsThatOfTheGuidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.01);
    EXPECT_EQ(readableOn(QColor(104, 200, 140)), QColor(Qt::black));
    EXPECT_GE(contrast(mixed(Qt::white, Qt::black, 3), Qt::white), 3);
    EXPECT_LT(contrast(mixed(Qt::white, Qt::black, 3), Qt::white), 4) << "no stronger than needed";
    EXPECT_EQ(mixed(Qt::white, QColor(250, 250, 250), 3), QColor(250, 250, 250));
}

TEST(Look, powerButtonsStandOutFromTheWindow) {
    for (const Theme &theme : themes()) {
        SCOPED_TRACE(theme.name);
        const QColor window = theme.palette.color(QPalette::Window);
        PowerButtonImage button(5, nullptr);
        button.setPalette(theme.palette);
        button.showButton({});
        button.resize(button.sizeHint());
        const int side = button.width();
        const QRect topEdge(4, 0, side - 8, 1);
        const QRect inside(8, 8, side - 16, side - 16);
        const QImage empty = pixelsOf(button);
        EXPECT_GE(strongest(empty, topEdge, window), lineContrast);
        EXPECT_GE(strongest(empty, inside, window), textContrast) << "the number";

        CPowerButton defined;
        defined.Name = QStringLiteral("Own");
        defined.IconText = QStringLiteral("A");
        button.showButton(defined);
        const QImage full = pixelsOf(button);
        const QRect corner(side - 13, side - 13, 11, 11);
        EXPECT_GE(strongest(full, topEdge, window), lineContrast);
        EXPECT_GE(strongest(full, corner, Qt::white), textContrast) << "the badge";
        EXPECT_GE(strongest(full, corner, QColor(1, 99, 49)), textContrast) << "the number on it";
    }
}

TEST(Look, theMainActionIsFilledAndReadableInEveryState) {
    for (const Theme &theme : themes()) {
        PrimaryButton button(QStringLiteral("Copy and Close"));
        button.setPalette(theme.palette);
        button.resize(button.sizeHint());
        EXPECT_GE(button.height(), 32);
        const auto look = [&](const char *state, double caption, double filled) {
            SCOPED_TRACE(std::string(theme.name) + ", " + state);
            const QImage image = pixelsOf(button);
            const QColor ground = image.pixelColor(7, button.height() / 2);
            EXPECT_GE(strongest(image, button.rect().adjusted(10, 8, -10, -8), ground), caption);
            EXPECT_GE(contrast(ground, theme.palette.color(QPalette::Window)), filled);
        };
        look("at rest", textContrast, lineContrast);
        button.setDown(true);
        look("pressed", textContrast, 1.5);
        button.setDown(false);
        button.setAttribute(Qt::WA_UnderMouse);
        look("under the pointer", textContrast, lineContrast);
        button.setAttribute(Qt::WA_UnderMouse, false);
        activate(button);
        button.setFocus();
        const QImage focused = pixelsOf(button);
        EXPECT_GE(
            contrast(focused.pixelColor(3, button.height() / 2), focused.pixelColor(7, button.height() / 2)),
            lineContrast)
            << theme.name << ": the ring of the focus";
        button.setEnabled(false);
        look("disabled", 2, 1.2);
    }
}

} // namespace
