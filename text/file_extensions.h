// SPDX-License-Identifier: MIT
// modFileExt: which words end in a known file extension.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

/// The extensions that the user has listed in the Options, then data/FileExtensions.txt.
class FileExtensions {
  public:
    /// The file (one extension a line, "#" comments) is read when an extension is first asked for; a missing
    /// file leaves the user's list alone.
    explicit FileExtensions(QString file = {}) : m_file(std::move(file)) {}

    void setUserExtensions(const QStringList &extensions);
    [[nodiscard]] const QStringList &userExtensions() const { return m_user; }

    /// True for a listed extension, in any case, without its full stop; false for the empty one.
    [[nodiscard]] bool IsRegisteredExtension(const QString &extension) const;
    /// The same without the user's list: what the system itself knows.
    [[nodiscard]] bool isSystemExtension(const QString &extension) const;

  private:
    [[nodiscard]] const QSet<QString> &systemExtensions() const;

    QString m_file;
    QStringList m_user;
    QSet<QString> m_userSet;
    mutable std::optional<QSet<QString>> m_system;
};

} // namespace tolvo
