// SPDX-License-Identifier: MIT
// Where windows stand, as the store remembers it for each kind of screen.
#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <optional>

namespace tolvo {

struct WindowPlace {
    QRect area; ///< the corner of the frame and the size inside it, without the scale of the screen
    bool maximised = false; ///< `area` is then where it goes back to

    bool operator==(const WindowPlace &) const = default;
};

/// "40,30,900,640", with ",max" for a maximised window.
[[nodiscard]] QString written(const WindowPlace &place);
/// Nothing for any other text, and for sizes that are not above 0.
[[nodiscard]] std::optional<WindowPlace> readPlace(const QString &text);

/// The place, if it lies on one of the screens as a whole. Screens may have gone since it was written.
[[nodiscard]] std::optional<WindowPlace> placeOnScreens(const QString &text, const QList<QRect> &screens);

/// The kind of a screen: screenName({1920, 1080}, 1.5) is "1920x1080@1.5".
[[nodiscard]] QString screenName(QSize size, double scale);

/// The size of the main window at the first start, by the room on the screen: a good part of it, but no more
/// than a text needs, and never more than there is beside the frame.
[[nodiscard]] QSize firstSize(QSize room, QSize frame);

} // namespace tolvo
