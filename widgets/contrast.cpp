// SPDX-License-Identifier: MIT
#include "widgets/contrast.h"

#include <algorithm>
#include <cmath>

namespace tolvo {

namespace {

double luminance(const QColor &colour) {
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

} // namespace

double contrast(const QColor &one, const QColor &other) {
    const double a = luminance(one);
    const double b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

QColor readableOn(const QColor &ground) {
    return contrast(ground, Qt::white) >= contrast(ground, Qt::black) ? Qt::white : Qt::black;
}

QColor mixed(const QColor &ground, const QColor &ink, double least) {
    constexpr int steps = 20;
    for (int i = 1; i < steps; ++i) {
        const double share = static_cast<double>(i) / steps;
        const auto channel = [share](int from, int to) {
            return static_cast<int>(std::lround(from + share * (to - from)));
        };
        const QColor mixture(channel(ground.red(), ink.red()), channel(ground.green(), ink.green()),
                             channel(ground.blue(), ink.blue()));
        if (contrast(mixture, ground) >= least)
            return mixture;
    }
    return ink;
}

QColor edgeColour(const QPalette &palette) {
    constexpr double spare = 0.5; // antialiasing takes its share
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), lineContrast + spare);
}

} // namespace tolvo
