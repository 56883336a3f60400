// SPDX-License-Identifier: MIT
// The name and version that the program shows and stores under.
#pragma once

#include <QString>

namespace tolvo {

/// Title of the program in captions and message boxes, and the name of its settings tree: "Tolvo".
[[nodiscard]] QString applicationTitle();

/// Name of the statistics tree of the settings store: "Tolvo-Stats".
[[nodiscard]] QString statisticsTree();

/// Major, minor and revision joined by full stops, for instance "1.0.0".
[[nodiscard]] QString applicationVersion();

/// The version in two parts, for the About box: "1.0" and "0".
[[nodiscard]] QString applicationVersionMajorMinor();
[[nodiscard]] QString applicationRevision();

/// The number of UTF-16 code units that the text area can hold: 65535.
inline constexpr int textLimit = 65535;

} // namespace tolvo
