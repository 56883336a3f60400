// SPDX-License-Identifier: MIT
// Adding dictionaries to the user's own folder for them, and taking them away again.
#pragma once

#include "spelling/dictionaries.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace tolvo {

struct SpellingServices;

/// What has been added, or a sentence for the user about why nothing was.
struct AddedDictionaries {
    QStringList locales;
    QString fault;
};

/// Adds the dictionary of an .aff or .dic file, whose other file lies beside it, or all dictionaries of a
/// package (.oxt, .zip). Each is checked before; if one can't be taken, nothing is changed. A dictionary of
/// the same name that the user has added before is replaced.
[[nodiscard]] AddedDictionaries addDictionaries(const SpellingServices &services, const QString &path);

/// Takes away a dictionary that the user has added; nothing of others. A sentence for the user if that fails.
[[nodiscard]] QString removeDictionary(const SpellingServices &services, const DictionaryFiles &files);

/// The packages and the pairs (by their .dic file) that lie in folders, as paths.
[[nodiscard]] QStringList dictionariesToAdd(const QStringList &folders);

} // namespace tolvo
