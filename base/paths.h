// SPDX-License-Identifier: MIT
// Gen_Procs: folders, leaf names, extensions.
#pragma once

#include <QIODevice>
#include <QString>

namespace tolvo {

/// The folder with a separator at its end: one is added if the last character is none. The separator is the
/// platform's: a backslash on Windows, a slash elsewhere.
[[nodiscard]] QString sAppPath(const QString &folder);
/// The same with a given separator: sAppPath("C:\\x", '\\') is "C:\\x\\".
[[nodiscard]] QString sAppPath(const QString &folder, QChar separator);

/// The last component behind the last backslash.
[[nodiscard]] QString fnLeaf(const QString &path);
/// The same behind the last separator of any kind that the platform knows.
[[nodiscard]] QString leafOfPlatformPath(const QString &path);

/// The extension of a file name or a word in a text: what stands behind the last full stop, cut before the
/// first of blank, LF, CR, TAB, double quote, asterisk, vertical bar. Empty without a full stop or behind a
/// final one.
[[nodiscard]] QString fnExtension(QStringView name);

/// The next line of a UTF-8 file that is not blank after trimming, trimmed; the empty string at the end of
/// the file.
[[nodiscard]] QString fnReadLine(QIODevice &file);

} // namespace tolvo
