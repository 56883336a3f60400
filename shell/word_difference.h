// SPDX-License-Identifier: MIT
// The difference of two texts word by word, as a text.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

/// The text `after` with marks: "[-" and "-]" around what only `before` has, "{+" and "+}" around what only
/// `after` has. Lines that occur once in both are the fixed points, as in a patience difference, and so are
/// such words between two of those lines; between the words the shortest difference is looked for as long as
/// that is short work, and all is taken as changed otherwise. Takes time in proportion to the texts.
///   wordDifference(u"some tea", u"more tea") is u"[-some-]{+more+} tea"
[[nodiscard]] QString wordDifference(QStringView before, QStringView after);

} // namespace tolvo
