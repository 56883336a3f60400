// SPDX-License-Identifier: MIT
// One word, written in several ways that are the same to its reader.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

/// The other ways to write a word: with straight (U+0027) or curly apostrophes (U+2019), and letters and
/// their accents in one character. None for most words.
///   otherForms("don\u2019t") is {"don't"}
[[nodiscard]] QStringList otherForms(const QString &word);

/// The form in which a dictionary is asked for suggestions: with straight apostrophes, composed.
[[nodiscard]] QString plainForm(const QString &word);

/// A suggestion with the apostrophe of the word that it stands for: curly if that has a curly one.
///   withApostropheOf("dont\u2019s", "don't") is "don\u2019t"
[[nodiscard]] QString withApostropheOf(const QString &word, QString suggestion);

} // namespace tolvo
