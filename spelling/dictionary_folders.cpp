// SPDX-License-Identifier: MIT
#include "spelling/dictionary_folders.h"

#include "spelling/spelling_services.h"

#include <QDir>
#include <QStandardPaths>

namespace tolvo {

QString userDictionaries(const SpellingServices &services) {
    return services.userFolder + QStringLiteral("/Dictionaries");
}

QList<DictionaryFolder> dictionaryFolders(const SpellingServices &services) {
    QList<DictionaryFolder> folders{
        {QDir(services.dataFolder).filePath(QStringLiteral("Dictionaries")), DictionarySource::Program}};
    const QDir own(userDictionaries(services));
    folders += {own.path(), DictionarySource::User};
    // A name with a full stop before it is that of a folder that is being written.
    for (const QString &name : own.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        folders += {own.filePath(name), DictionarySource::User};
    for (const QString &path : services.systemDictionaries)
        folders += {path, DictionarySource::System};
    return folders;
}

QStringList systemDictionaryFolders() {
    QStringList folders = qEnvironmentVariable("DICPATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    QStringList shared = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
#ifdef Q_OS_UNIX
    shared += QStringLiteral("/usr/share");
#endif
    for (const QString &data : std::as_const(shared)) {
        for (const QLatin1String name :
             {QLatin1String("/hunspell"), QLatin1String("/myspell"), QLatin1String("/myspell/dicts")})
            folders += data + name;
    }
#ifdef Q_OS_MACOS
    folders += {QDir::homePath() + QStringLiteral("/Library/Spelling"), QStringLiteral("/Library/Spelling")};
#endif
#ifdef Q_OS_WIN
    folders += QStringLiteral("C:/Hunspell");
#endif
    folders.removeDuplicates();
    return folders;
}

} // namespace tolvo
