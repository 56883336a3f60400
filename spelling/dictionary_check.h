// SPDX-License-Identifier: MIT
// What is wrong with the files of a dictionary. The formats are described in the manual page hunspell(5).
#pragma once

#include "spelling/dictionaries.h"

#include <QString>

namespace tolvo {

/// The largest files that are loaded, in bytes; the largest known dictionaries have a quarter of that.
inline constexpr qint64 largestAff = 48LL << 20;
inline constexpr qint64 largestDic = 128LL << 20;

/// A sentence for the user about what makes the files unfit to be loaded: missing, empty, too large, no
/// number of words at the start or one that the file can't hold. Empty if nothing does.
[[nodiscard]] QString fileFault(const DictionaryFiles &files);

/// The same after a closer look, for files that come from elsewhere: the encoding is known and the one in
/// which the words are written, and the dictionary knows its own words. Takes as long as loading it twice.
[[nodiscard]] QString dictionaryFault(const DictionaryFiles &files);

} // namespace tolvo
