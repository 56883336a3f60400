// SPDX-License-Identifier: MIT
// The files of the local dictionaries: where they lie, and the personal word list beside them.
#pragma once

#include "spelling/spelling_services.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

struct DictionaryFiles {
    QString aff;
    QString dic;
};

/// The folder Dictionaries of the program folder, then the system's folders of Hunspell dictionaries.
[[nodiscard]] QStringList dictionaryFolders(const QString &programFolder);

/// The two files of a locale ("en-gb") in the first folder that holds both. Names compare without case and
/// with "-" as "_"; a name that fits exactly goes before one that differs in case.
[[nodiscard]] std::optional<DictionaryFiles> findDictionary(const QString &locale,
                                                            const QStringList &folders);

/// Path of persdict.dat: in the folder Dictionaries of the program folder if that can be written, else in the
/// user's folder.
[[nodiscard]] QString personalDictionaryPath(const SpellingServices &services);

/// Makes an empty personal dictionary if there is none. A folder that can't be written is no failure here:
/// the next check tells.
void ensurePersonalDictionary(const SpellingServices &services);

/// The lines of the personal dictionary as they stand, blank ones too. Fails with 53 if the file is missing,
/// with 75 if it can't be read.
[[nodiscard]] QStringList readPersonalDictionary(const QString &path);

/// Appends a word as one line (UTF-8, CR LF). Fails with 53 if the file is missing (it is never created),
/// with 75 if it can't be written.
void appendWord(const QString &path, const QString &word);

} // namespace tolvo
