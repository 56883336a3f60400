// SPDX-License-Identifier: MIT
// The spelling check of tolvo-pipe: a list of words instead of a walk through them.
#pragma once

#include "shell/headless/steps.h"

#include <QString>
#include <QStringList>
#include <functional>

namespace tolvo {

/// What to list.
struct SpellRequest {
    QString locale; ///< "en_GB"; "en-gb" means the same
    bool json = false;
};

/// Hands on each word of a text that neither the dictionary of a language nor the user's own knows, as one
/// line without its end; words that the options leave out are left out here. False if there is none. Throws
/// BadRequest if there is no such dictionary.
///   "1:5: teh: the, ten", or {"line":1,"column":5,"word":"teh","suggestions":["the","ten"]}
[[nodiscard]] bool listMisspellings(const HeadlessWorld &world, const SpellRequest &request,
                                    const QString &text,
                                    const std::function<void(const QString &)> &writeLine);

/// The dictionaries of this machine: "en_GB", TAB, name of the language.
[[nodiscard]] QStringList dictionaryList(const HeadlessWorld &world);

} // namespace tolvo
