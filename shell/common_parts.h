// SPDX-License-Identifier: MIT
// What two texts have in common.
#pragma once

#include <QList>
#include <QStringView>

namespace tolvo {

/// A piece that stands in both texts, in UTF-16 units from 0.
struct CommonPart {
    qsizetype oldStart = 0;
    qsizetype start = 0;
    qsizetype length = 0;
};

/// What a text is taken apart into: lines with their ends, or words, every other character by itself.
enum class Tokens { Lines, Words };

/// Where the token ends that begins at a place of the text.
[[nodiscard]] qsizetype endOfToken(QStringView text, qsizetype start, Tokens tokens);

/// The tokens that occur once in each text, as many of them as stand in the same order; in that order.
[[nodiscard]] QList<CommonPart> commonTokens(QStringView before, QStringView after, Tokens tokens);

/// The characters of a shortest difference, in their order (E. W. Myers, "An O(ND) difference algorithm and
/// its variations", 1986). Nothing if it takes more than `workLeft` steps or more than `mostEdits`; what it
/// takes is subtracted from the work.
[[nodiscard]] QList<CommonPart> commonCharacters(QStringView before, QStringView after, int &workLeft,
                                                 int mostEdits = 200);

/// How many units both texts begin with, or end with.
[[nodiscard]] qsizetype equalFront(QStringView one, QStringView other);
[[nodiscard]] qsizetype equalBack(QStringView one, QStringView other);

} // namespace tolvo
