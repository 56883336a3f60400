// SPDX-License-Identifier: MIT
// The languages of the Hunspell dictionaries on this machine.
#pragma once

#include "spelling/dictionaries.h"
#include "spelling/dictionary_folders.h"

#include <QList>
#include <QString>

namespace tolvo {

/// A dictionary, as a language to check in.
struct FoundLanguage {
    QString locale; ///< "de-at", from the name of the files
    QString name;   ///< "Deutsch (Österreich)"
    DictionaryFiles files;
    DictionarySource source = DictionarySource::System;

    /// Where it lies, in words: "With Tolvo", "Added by you", else the folder.
    [[nodiscard]] QString place() const;
};

/// One language for each locale that has both files of a dictionary, in the order of their names. Of several
/// dictionaries of a locale the one in the first folder counts, as it does for a check. Files are not opened.
[[nodiscard]] QList<FoundLanguage> foundLanguages(const SpellingServices &services);

/// The name of a locale from the name of a dictionary's file: localeOfFile("de_AT") is "de-at".
[[nodiscard]] QString localeOfFile(const QString &baseName);

} // namespace tolvo
