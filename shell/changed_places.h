// SPDX-License-Identifier: MIT
// What a tool has changed, place by place, for the eye.
#pragma once

#include <QList>
#include <QStringView>

namespace tolvo {

/// A place where two texts differ, in UTF-16 units from 0. A length may be 0: there something was only put in
/// or only taken out.
struct ChangedPlace {
    qsizetype oldStart = 0;
    qsizetype oldLength = 0;
    qsizetype start = 0;
    qsizetype length = 0;

    bool operator==(const ChangedPlace &) const = default;
};

/// The places in their order: with each put in, `before` becomes `after`. Places inside one word that are at
/// most two units apart are one. Lines and then words that occur once on both sides are the fixed points, as
/// in a patience difference; what lies between them is compared character by character (Myers, "An O(ND)
/// difference algorithm and its variations", 1986) as long as that is short work, and is one place otherwise.
///   changedPlaces(u"the cat", u"The Cat") gives the places of "T" and "C".
/// Takes time in proportion to the texts.
[[nodiscard]] QList<ChangedPlace> changedPlaces(QStringView before, QStringView after);

/// "3 places changed"
[[nodiscard]] QString placesText(qsizetype count);

} // namespace tolvo
