// SPDX-License-Identifier: MIT
// All characters that can be shown, by block, by name, by code.
#pragma once

#include <QList>
#include <QString>

namespace tolvo {

struct CharacterBlock {
    QString name; ///< "Miscellaneous Symbols"
    char32_t first = 0;
    char32_t last = 0;
};

/// The blocks that hold anything to see, in the order of their codes.
[[nodiscard]] QList<CharacterBlock> characterBlocks();

/// The visible characters of a block.
[[nodiscard]] QList<char32_t> charactersOf(const CharacterBlock &block);

/// What a user may mean by `query`, best first and at most `limit`: the character itself, its code in
/// hexadecimal digits ("2192", "U+2192"), or words of its name, of which the beginnings are enough. A few
/// everyday words ("mail", "tick") stand for the names that they don't occur in.
[[nodiscard]] QList<char32_t> findCharacters(const QString &query, int limit);

} // namespace tolvo
