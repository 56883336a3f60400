// SPDX-License-Identifier: MIT
#include "spelling/dictionaries.h"

#include "spelling/dictionary_folders.h"

#include <QDir>
#include <QFileInfo>

namespace tolvo {

namespace {

QString personalName() {
    return QStringLiteral("persdict.dat");
}

QString programDictionaries(const QString &dataFolder) {
    return QDir(dataFolder).filePath(QStringLiteral("Dictionaries"));
}

QString normalised(const QString &fileName) {
    return QString(fileName).replace(u'-', u'_').toLower();
}

/// The entry of `folder` that equals `name` apart from case and "-" for "_"; empty if there is none.
QString fileLike(const QDir &folder, const QString &name) {
    // By the names as they stand in the folder: some file systems know a file by its name in any case.
    const QStringList entries = folder.entryList(QDir::Files, QDir::Name);
    if (entries.contains(name))
        return folder.filePath(name);
    for (const QString &entry : entries) {
        if (normalised(entry) == normalised(name))
            return folder.filePath(entry);
    }
    return {};
}

} // namespace

std::optional<DictionaryFiles> findDictionary(const QString &locale, const QStringList &folders) {
    // A locale must not lead to another folder.
    if (locale.isEmpty() || locale.contains(u'/') || locale.contains(u'\\'))
        return std::nullopt;
    const QString stem = QString(locale).replace(u'-', u'_');
    for (const QString &path : folders) {
        const QDir folder(path);
        DictionaryFiles files{fileLike(folder, stem + QStringLiteral(".aff")),
                              fileLike(folder, stem + QStringLiteral(".dic"))};
        if (!files.aff.isEmpty() && !files.dic.isEmpty())
            return files;
    }
    return std::nullopt;
}

std::optional<DictionaryFiles> findDictionary(const QString &locale, const SpellingServices &services) {
    QStringList paths;
    for (const DictionaryFolder &folder : dictionaryFolders(services))
        paths += folder.path;
    return findDictionary(locale, paths);
}

QString personalDictionaryPath(const SpellingServices &services) {
    const QString beside = programDictionaries(services.dataFolder);
    const QFileInfo folder(beside);
    if (folder.isDir() && folder.isWritable())
        return beside + u'/' + personalName();
    return services.userFolder + u'/' + personalName();
}

} // namespace tolvo
