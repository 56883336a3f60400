// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace tolvo {

/// A file that was to be read as text.
struct TextFile {
    QString name;                ///< without its folders
    std::optional<QString> text; ///< with the line ends of the file
    QString refusal;             ///< why there is no text, for the user
};

/// Reads a file in any of the usual encodings (decodedText). It refuses what is not text, what can't be read,
/// and files above 64 MB.
[[nodiscard]] TextFile readTextFile(const QString &path);

} // namespace tolvo
