// SPDX-License-Identifier: MIT
// Gen_Procs: folders, file names, extensions.
#pragma once

#include <QIODevice>
#include <QString>

namespace tolvo {

/// The folder with a separator at its end, which is added if it is missing. The separator is the platform's:
/// a backslash on Windows, a slash elsewhere.
[[nodiscard]] QString sAppPath(const QString &folder);
/// The same with a given separator: sAppPath("C:\\x", '\\') is "C:\\x\\".
[[nodiscard]] QString sAppPath(const QString &folder, QChar separator);

/// The part after the last backslash, trimmed of blanks: "C:\\a\\b.txt" gives "b.txt". All of a path without
/// a backslash.
[[nodiscard]] QString fnLeaf(const QString &path);
/// The part after the last separator of any kind that the platform uses.
[[nodiscard]] QString leafOfPlatformPath(const QString &path);

/// The extension of a file name or of a word in a text, without its full stop: "report.final.txt" gives
/// "txt". It ends before the first member of wordBreakers: "a.txt|b" gives "txt". Empty for a name without a
/// full stop or with one at its end.
[[nodiscard]] QString fnExtension(QStringView name);

/// Reads the next line of a UTF-8 file that is not blank, and trims it. Returns the empty string at the end
/// of the file.
[[nodiscard]] QString fnReadLine(QIODevice &file);

} // namespace tolvo
