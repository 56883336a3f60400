// SPDX-License-Identifier: MIT
#include "base/paths.h"

#include "base/character_sets.h"
#include "base/strings.h"

#include <QDir>

namespace tolvo {

QString sAppPath(const QString &folder, QChar separator) {
    return folder.endsWith(separator) ? folder : folder + separator;
}

QString sAppPath(const QString &folder) {
    return sAppPath(folder, QDir::separator());
}

QString fnLeaf(const QString &path) {
    return trimBlanks(QStringView(path).sliced(path.lastIndexOf(u'\\') + 1)).toString();
}

QString leafOfPlatformPath(const QString &path) {
    return path.sliced(QDir::fromNativeSeparators(path).lastIndexOf(u'/') + 1);
}

QString fnExtension(QStringView name) {
    const qsizetype stop = name.lastIndexOf(u'.');
    if (stop < 0)
        return {};
    QStringView extension = trimBlanks(name.sliced(stop + 1));
    for (qsizetype i = 0; i < extension.size(); ++i) {
        if (contains(wordBreakers, extension.at(i).unicode()))
            return extension.first(i).toString();
    }
    return extension.toString();
}

QString fnReadLine(QIODevice &file) {
    while (!file.atEnd()) {
        QString line = QString::fromUtf8(file.readLine()).trimmed();
        if (!line.isEmpty())
            return line;
    }
    return {};
}

} // namespace tolvo
