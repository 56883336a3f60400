// SPDX-License-Identifier: MIT
// modFileExt: the file extensions by which a word is taken for a file name.
#pragma once

#include <QSet>
#include <QString>
#include <QStringList>
#include <optional>

namespace tolvo {

/// The user's extensions, from the Options, and the system's.
class FileExtensions {
  public:
    /// Where the system's extensions come from: from data/FileExtensions.txt, so that the answer is the same
    /// everywhere, or from the system's register of file types, if it keeps one.
    enum class Source { List, System };

    /// `file` holds the system's extensions, one a line, with comments after "#" at a line's start. It is
    /// read when it is first needed; without it only the user's list counts.
    explicit FileExtensions(QString file = {}, Source source = Source::List)
        : m_file(std::move(file)), m_source(source) {}

    /// Replaces the user's list.
    void setUserExtensions(const QStringList &extensions);

    /// True for an extension (without its full stop) of either list, in any case; false for the empty one.
    ///   IsRegisteredExtension("DOC") is true
    [[nodiscard]] bool IsRegisteredExtension(const QString &extension) const;
    /// The same for the system's list alone.
    [[nodiscard]] bool isSystemExtension(const QString &extension) const;

  private:
    [[nodiscard]] const QSet<QString> &listedExtensions() const;

    QString m_file;
    Source m_source;
    QSet<QString> m_user;
    mutable std::optional<QSet<QString>> m_listed;
};

} // namespace tolvo
