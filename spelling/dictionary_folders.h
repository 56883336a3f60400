// SPDX-License-Identifier: MIT
// Where dictionaries lie: beside the program, in the user's own folder for them, and where the system and
// other programs keep theirs. The variable DICPATH is described in the manual page hunspell(1).
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace tolvo {

struct SpellingServices;

/// Whose a dictionary is.
enum class DictionarySource { Program, User, System };

struct DictionaryFolder {
    QString path;
    DictionarySource source;
};

/// The user's own folder for dictionaries: each lies in a folder of its own below it. It need not exist.
[[nodiscard]] QString userDictionaries(const SpellingServices &services);

/// All folders with dictionaries, in the order in which they are searched: the folder Dictionaries of the
/// program folder, the user's own with the folders in it, then the system's.
[[nodiscard]] QList<DictionaryFolder> dictionaryFolders(const SpellingServices &services);

/// The folders of DICPATH, then those that are usual on this platform. A folder need not exist, and none
/// stands there twice.
[[nodiscard]] QStringList systemDictionaryFolders();

} // namespace tolvo
