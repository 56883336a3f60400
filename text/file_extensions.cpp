// SPDX-License-Identifier: MIT
#include "text/file_extensions.h"

#include "base/paths.h"
#include "platform/file_types.h"

#include <QFile>

namespace tolvo {

const QSet<QString> &FileExtensions::listedExtensions() const {
    if (m_listed)
        return *m_listed;
    m_listed.emplace();
    QFile list(m_file);
    if (m_file.isEmpty() || !list.open(QIODevice::ReadOnly))
        return *m_listed;
    for (QString line = fnReadLine(list); !line.isEmpty(); line = fnReadLine(list)) {
        if (!line.startsWith(u'#'))
            m_listed->insert(line.toCaseFolded());
    }
    return *m_listed;
}

void FileExtensions::setUserExtensions(const QStringList &extensions) {
    m_user.clear();
    for (const QString &extension : extensions)
        m_user.insert(extension.toCaseFolded());
}

bool FileExtensions::IsRegisteredExtension(const QString &extension) const {
    return !extension.isEmpty() &&
           (m_user.contains(extension.toCaseFolded()) || isSystemExtension(extension));
}

bool FileExtensions::isSystemExtension(const QString &extension) const {
    if (extension.isEmpty())
        return false;
    if (m_source == Source::System) {
        if (const std::optional<bool> registered = isRegisteredType(extension))
            return *registered;
    }
    return listedExtensions().contains(extension.toCaseFolded());
}

} // namespace tolvo
