// SPDX-License-Identifier: MIT
#include "preferences/file_extensions.h"

#include "base/paths.h"

#include <QFile>

namespace tolvo {

FileExtensions::FileExtensions(const QString &file) {
    QFile list(file);
    if (file.isEmpty() || !list.open(QIODevice::ReadOnly))
        return;
    for (QString line = fnReadLine(list); !line.isEmpty(); line = fnReadLine(list)) {
        if (!line.startsWith(u'#'))
            m_system.insert(line.toCaseFolded());
    }
}

void FileExtensions::setUserExtensions(const QStringList &extensions) {
    m_user = extensions;
    m_userSet.clear();
    for (const QString &extension : extensions)
        m_userSet.insert(extension.toCaseFolded());
}

bool FileExtensions::IsRegisteredExtension(const QString &extension) const {
    const QString folded = extension.toCaseFolded();
    return !folded.isEmpty() && (m_userSet.contains(folded) || m_system.contains(folded));
}

bool FileExtensions::isSystemExtension(const QString &extension) const {
    return m_system.contains(extension.toCaseFolded());
}

} // namespace tolvo
