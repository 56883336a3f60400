// SPDX-License-Identifier: MIT
#include "base/private_files.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tolvo {

namespace {

constexpr auto readAndWrite = QFile::ReadOwner | QFile::WriteOwner;

} // namespace

void makePrivateFolder(const QString &path) {
    const QFileInfo folder(path);
    if (folder.exists() || folder.isRoot())
        return;
    makePrivateFolder(folder.absolutePath());
    QDir().mkdir(folder.absoluteFilePath(), readAndWrite | QFile::ExeOwner);
}

void makePrivateFile(const QString &path) {
    QFile file(path);
    // NewOnly creates the file and sets its rights in one step.
    (void)file.open(QIODevice::WriteOnly | QIODevice::NewOnly, readAndWrite);
}

} // namespace tolvo
