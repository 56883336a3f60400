// SPDX-License-Identifier: MIT
// A file of words, one a line: what a user's own dictionary is. Several runs may write it at the same time.
#pragma once

#include <QString>
#include <QStringList>

namespace tolvo {

/// The lines of a file as they are, blank ones too, in UTF-8 or, where a line is not UTF-8, in Windows-1252.
/// Fails with 53 if the file is missing and with 75 if it can't be read.
[[nodiscard]] QStringList readWordList(const QString &path);

/// Appends words, each as one line (UTF-8, CR LF), after completing an unfinished last line. Fails with 53 if
/// the file is missing (it is never created) and with 75 if it can't be written.
void appendWords(const QString &path, const QStringList &words);

/// Removes all lines that hold one of the words; the others keep their bytes. Fails as appendWords.
void removeWords(const QString &path, const QStringList &words);

} // namespace tolvo
