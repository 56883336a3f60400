// SPDX-License-Identifier: MIT
// The icon of a PowerButton as a value, and the units it is measured in.
#pragma once

#include "platform/font.h"
#include "powerbuttons/CPowerButton.h"

#include <QString>

namespace tolvo {

/// The icon is a white square of 32 by 32 units with a short black text. At a scale of 100 % a unit is a
/// pixel and 96 units are an inch, so that a font of 16 points is 21 1/3 units high. x and y are the left
/// upper corner of the text, counted from that of the square.
inline constexpr double iconUnits = 32;
inline constexpr double iconUnitsPerPoint = 96.0 / 72.0;
/// How far an arrow of the icon editor moves the text.
inline constexpr double iconStep = 1;
/// The icon editor takes no more characters than this.
inline constexpr int iconCharacters = 3;
/// The sizes that the icon editor offers, in points.
inline constexpr int smallestIconFont = 4;
inline constexpr int largestIconFont = 40;

struct ButtonIcon {
    QString text;
    Font font;
    double x = 0;
    double y = 0;

    bool operator==(const ButtonIcon &) const = default;
};

/// The icon of a button, and the other way round.
[[nodiscard]] ButtonIcon iconOf(const CPowerButton &button);
void setIcon(CPowerButton &button, const ButtonIcon &icon);

/// The font of an icon that names none: "Arial".
[[nodiscard]] QString defaultIconFont();

/// At most `count` characters from the front, as a reader counts them: a surrogate pair and a letter with its
/// accents are one.
[[nodiscard]] QString firstCharacters(const QString &text, int count);

/// Name, bold and italic as they apply, and the size: "Arial Bold (16pt)".
[[nodiscard]] QString fontLabel(const Font &font);

} // namespace tolvo
