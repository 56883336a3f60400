// SPDX-License-Identifier: MIT
// modFileExt: the file extensions by which a word is taken for a file name.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

/// The user's extensions, from the Options, and the system's, from data/FileExtensions.txt.
class FileExtensions {
  public:
    /// `file` holds the system's extensions, one a line, with comments after "#" at a line's start. It is
    /// read when it is first needed; without it only the user's list counts.
    explicit FileExtensions(QString file = {}) : m_file(std::move(file)) {}

    /// Replaces the user's list.
    void setUserExtensions(const QStringList &extensions);

    /// True for an extension (without its full stop) of either list, in any case; false for the empty one.
    ///   IsRegisteredExtension("DOC") is true
    [[nodiscard]] bool IsRegisteredExtension(const QString &extension) const;
    /// The same for the system's list alone.
    [[nodiscard]] bool isSystemExtension(const QString &extension) const;

  private:
    [[nodiscard]] const QSet<QString> &systemExtensions() const;

    QString m_file;
    QSet<QString> m_user;
    mutable std::optional<QSet<QString>> m_system;
};

} // namespace tolvo
