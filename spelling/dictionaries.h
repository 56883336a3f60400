// SPDX-License-Identifier: MIT
// The files of the local dictionaries and the personal word list beside them. Hunspell's formats (.aff, .dic)
// are described in the manual page hunspell(5).
#pragma once

#include "spelling/spelling_services.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

/// The paths of a dictionary's two files: rules and words.
struct DictionaryFiles {
    QString aff;
    QString dic;
};

/// The two files of a locale ("en-gb") in the first folder that holds both; nothing if none does. Names
/// compare without regard to case and with "-" as "_"; an exact match is preferred. A locale with a path
/// separator in it has no files.
[[nodiscard]] std::optional<DictionaryFiles> findDictionary(const QString &locale,
                                                            const QStringList &folders);
/// The same in all folders with dictionaries.
[[nodiscard]] std::optional<DictionaryFiles> findDictionary(const QString &locale,
                                                            const SpellingServices &services);

/// The path of persdict.dat: in the folder Dictionaries of the program folder if that is writable, else in
/// the user's folder. The file need not exist.
[[nodiscard]] QString personalDictionaryPath(const SpellingServices &services);

} // namespace tolvo
