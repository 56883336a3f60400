// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace tolvo {

/// The path of a file for a library that opens it by itself and takes bytes for names. On Windows these are
/// UTF-8 and begin with "\\?\", which stands before a path of any length and letters:
///   "C:/Łódź/x.dic" is "\\?\C:\Łódź\x.dic"
[[nodiscard]] QByteArray libraryPath(const QString &path);

} // namespace tolvo
