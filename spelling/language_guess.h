// SPDX-License-Identifier: MIT
// The language of a text, measured with the dictionaries that could check it.
#pragma once

#include "spelling/dictionaries.h"

#include <QList>
#include <QString>
#include <QStringView>
#include <functional>

namespace tolvo {

struct GuessedLanguage {
    QString locale;
    DictionaryFiles files;
};

/// Pieces from all over a text, some two thousand units together, that begin and end between words. A short
/// text is its own sample.
[[nodiscard]] QString sampleOf(QStringView text);

/// The locale whose dictionary knows most words of a sample; of equal ones the first. Empty if that isn't
/// clear: few words, many unknown ones, or another language that knows nearly as many. Dictionaries of
/// another script than the sample's are not loaded, and none twice. `cancelled` is asked before each, which
/// takes 30 to 300 ms; the answer is then empty.
[[nodiscard]] QString guessLanguage(const QString &sample, const QList<GuessedLanguage> &languages,
                                    const std::function<bool()> &cancelled);

} // namespace tolvo
