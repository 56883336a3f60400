// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace tolvo {

/// A font as the program keeps and stores it; windows turn it into one of the toolkit.
struct Font {
    QString name;
    double size = 0; ///< points
    bool bold = false;
    bool italic = false;

    bool operator==(const Font &) const = default;
};

} // namespace tolvo
