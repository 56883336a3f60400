// SPDX-License-Identifier: MIT
#include "text/file_extensions.h"

#include "base/paths.h"

#include <QFile>

namespace tolvo {

const QSet<QString> &FileExtensions::systemExtensions() const {
    if (m_system)
        return *m_system;
    m_system.emplace();
    QFile list(m_file);
    if (m_file.isEmpty() || !list.open(QIODevice::ReadOnly))
        return *m_system;
    for (QString line = fnReadLine(list); !line.isEmpty(); line = fnReadLine(list)) {
        if (!line.startsWith(u'#'))
            m_system->insert(line.toCaseFolded());
    }
    return *m_system;
}

void FileExtensions::setUserExtensions(const QStringList &extensions) {
    m_user.clear();
    for (const QString &extension : extensions)
        m_user.insert(extension.toCaseFolded());
}

bool FileExtensions::IsRegisteredExtension(const QString &extension) const {
    const QString folded = extension.toCaseFolded();
    return !folded.isEmpty() && (m_user.contains(folded) || systemExtensions().contains(folded));
}

bool FileExtensions::isSystemExtension(const QString &extension) const {
    return systemExtensions().contains(extension.toCaseFolded());
}

} // namespace tolvo
