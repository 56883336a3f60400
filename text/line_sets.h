// SPDX-License-Identifier: MIT
// A text as a set of lines or words: which there are, how often, in which order.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>

namespace tolvo {

/// Without lines that stood before, blank ones too; the first of each stays where it is.
///   withoutDuplicates(u"b|a|b") == u"b|a"
[[nodiscard]] QString withoutDuplicates(QStringView text);

/// The lines in the order of Unicode's collation (UTS #10), numbers by their value: a2 before a10. Lines that
/// compare equal keep their order.
[[nodiscard]] QString naturallySorted(QStringView text);

/// The lines in random order. `below(n)` gives a number from 0 that is less than n, each as likely as
/// the others.
[[nodiscard]] QString shuffled(QStringView text, const std::function<quint32(quint32)> &below);

/// How often each line, or each word without regard to case, occurs: number, tab, line; the most frequent
/// first, others in the order in which they came. Blank lines don't count.
///   countedLines(u"a|b|a") == u"2⇥a|1⇥b"
[[nodiscard]] QString countedLines(QStringView text);
[[nodiscard]] QString countedWords(QStringView text);

/// The same for any texts; if asked, those that differ in case alone count as the first of them.
[[nodiscard]] QString countedTexts(const QStringList &texts, bool ignoresCase);

/// Each sentence on a line of its own, where Unicode ends sentences (UAX #29), but not after abbreviations
/// such as "e.g.". Line ends inside a sentence become blanks; blank lines part paragraphs and stay.
[[nodiscard]] QString sentencesAsLines(QStringView text);

} // namespace tolvo
