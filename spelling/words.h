// SPDX-License-Identifier: MIT
// The words of a text as the spelling check sees them, and the place of a phrase in it. Positions count
// from 1.
#pragma once

#include "platform/message_box.h"

#include <QString>
#include <QStringView>

namespace tolvo {

/// The next word at or behind `position`, which moves to the character behind the word; empty if no letter is
/// left. Letters are those of Windows-1252. An apostrophe, and a hyphen unless `noHyphen` is set, belongs to
/// the word if a letter follows: "don't", "well-known". Digits end a word.
[[nodiscard]] QStringView getNextWord(QStringView text, qsizetype &position, bool noHyphen);

/// Where a phrase stands that a web service reported with the word before it but without its offset: the
/// position of its first match in any case, between word boundaries. 0 if that one has another context, or
/// if there is no match, which is reported. The phrase is a pattern as it stands; an invalid one fails with
/// 5018. `start` has no effect: the search always runs over the whole text, so that a phrase reported twice
/// is found at its first place both times.
[[nodiscard]] qsizetype findThePlace(MessageBoxes &boxes, qsizetype start, QStringView text,
                                     const QString &word, const QString &precontext);

/// Whether the text before a phrase fits the context told for it: without one, the phrase must stand at the
/// text's start or behind punctuation; with one, that must be the text's end, in the same case, apart from
/// what isn't part of a word.
[[nodiscard]] bool contextFits(QStringView before, const QString &precontext);

} // namespace tolvo
