// SPDX-License-Identifier: MIT
// The spelling check of tolvo-pipe: a list of words instead of a walk through them.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace tolvo {

class SettingsStore;

/// Where dictionaries are looked for.
struct SpellRequest {
    SettingsStore &store;
    QString dataFolder;
    QString locale; ///< "en_GB"; "en-gb" means the same
    bool json = false;
};

/// Hands on each word of a text that neither the dictionary of a language nor the user's own knows, as one
/// line without its end. False if there is none. Throws BadRequest if there is no such dictionary.
///   "1:5: teh: the, ten", or {"line":1,"column":5,"word":"teh","suggestions":["the","ten"]}
[[nodiscard]] bool listMisspellings(const SpellRequest &request, const QString &text,
                                    const std::function<void(const QString &)> &writeLine);

/// The dictionaries of this machine: "en_GB", TAB, name of the language.
[[nodiscard]] QStringList dictionaryList(SettingsStore &store, const QString &dataFolder);

} // namespace tolvo
