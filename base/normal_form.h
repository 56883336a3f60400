// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// The text in normal form C of Unicode (UAX #15): letters and their accents in one character. Takes time in
/// proportion to the text.
[[nodiscard]] QString normalFormC(QStringView text);

} // namespace tolvo
