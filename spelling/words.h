// SPDX-License-Identifier: MIT
// The words of a text as the spelling check sees them, and the place of a phrase in it. Positions count
// from 1.
#pragma once

#include <QString>
#include <QStringView>

namespace tolvo {

class ReplyReports;

/// The first word at or after `position`, which moves to the character after the word. Empty if no letter is
/// left; `position` then moves past the end. Letters are those of Windows-1252. An apostrophe, and a hyphen
/// unless `noHyphen` is set, belongs to the word if a letter follows: "don't", "well-known". Digits end a
/// word.
[[nodiscard]] QStringView getNextWord(QStringView text, qsizetype &position, bool noHyphen);

/// The position of a phrase that a web service reported with the word before it but without its offset: that
/// of its first match in any case, between word boundaries. 0 if that match has another context, or if there
/// is no match, which is noted as lost. The phrase is used as a regular expression; an invalid one fails with
/// 5018. `start` has no effect: a phrase that is reported twice is found at its first place both times.
[[nodiscard]] qsizetype findThePlace(ReplyReports &reports, qsizetype start, QStringView text,
                                     const QString &word, const QString &precontext);

/// Whether the text before a phrase fits the context that the service reported. An empty text fits any
/// context. Without a context, the text before must be blank or end in punctuation; with one, it must end in
/// that, in the same case, apart from characters that are not part of a word.
[[nodiscard]] bool contextFits(QStringView before, const QString &precontext);

} // namespace tolvo
