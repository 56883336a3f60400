// SPDX-License-Identifier: MIT
#include "spelling/dictionary_installation.h"

#include "base/private_files.h"
#include "spelling/dictionary_check.h"
#include "spelling/dictionary_folders.h"
#include "spelling/dictionary_package.h"
#include "spelling/found_languages.h"
#include "spelling/language_names.h"
#include "spelling/spelling_services.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>

namespace tolvo {

namespace {

bool isPackage(const QString &path) {
    const QString extension = QFileInfo(path).suffix().toLower();
    return extension == QStringLiteral("oxt") || extension == QStringLiteral("zip");
}

/// The file beside `path` with another extension, in any case; a name without a file if there is none.
QString partner(const QString &path, const QString &extension) {
    const QFileInfo file(path);
    const QString wanted = file.completeBaseName() + u'.' + extension;
    for (const QString &name : file.dir().entryList(QDir::Files, QDir::Name)) {
        if (name.compare(wanted, Qt::CaseInsensitive) == 0)
            return file.dir().filePath(name);
    }
    return file.dir().filePath(wanted);
}

QByteArray contentsOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

DictionaryPackage readPair(const QString &path) {
    const DictionaryFiles files{partner(path, QStringLiteral("aff")), partner(path, QStringLiteral("dic"))};
    if (QString fault = fileFault(files); !fault.isEmpty())
        return {{}, fault};
    return {{{QFileInfo(path).completeBaseName(), contentsOf(files.aff), contentsOf(files.dic)}}, {}};
}

/// The name becomes that of a folder and of files, and says which language it is.
QString nameFault(const SpellingServices &services, const QString &baseName) {
    static const QRegularExpression plain(QStringLiteral("\\A[A-Za-z0-9]+([_-][A-Za-z0-9]+){0,6}\\z"));
    if (baseName.size() > 60 || !plain.match(baseName).hasMatch() || !isKnownLanguage(baseName))
        return QStringLiteral("The name '%1' doesn't say which language it is. Name the files as de_DE.aff "
                              "and de_DE.dic are.")
            .arg(baseName.left(60));
    for (const FoundLanguage &found : foundLanguages(services)) {
        if (found.locale == localeOfFile(baseName) && found.source == DictionarySource::Program)
            return found.name + QStringLiteral(" comes with Tolvo already.");
    }
    return {};
}

bool write(const QString &path, const QByteArray &contents) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.flush();
}

QString noRoom(const QString &folder) {
    return QStringLiteral("The dictionary can't be written to %1.").arg(QDir::toNativeSeparators(folder));
}

/// Writes a dictionary to a folder of its own below `stage` and checks it there.
QString stageOne(const QDir &stage, const DictionaryContents &dictionary) {
    const QString path = stage.filePath(dictionary.baseName);
    const DictionaryFiles files{path + u'/' + dictionary.baseName + QStringLiteral(".aff"),
                                path + u'/' + dictionary.baseName + QStringLiteral(".dic")};
    if (!stage.mkdir(dictionary.baseName) || !write(files.aff, dictionary.aff) ||
        !write(files.dic, dictionary.dic))
        return noRoom(stage.path());
    return dictionaryFault(files);
}

/// Puts all folders of the stage in their places, or none: what lay there is put back.
bool moveIn(const QDir &stage, const QDir &own, const QStringList &names) {
    QStringList done;
    const auto before = [](const QString &name) { return u'.' + name; };
    for (const QString &name : names) {
        const bool freed =
            !own.exists(name) || QDir().rename(own.filePath(name), stage.filePath(before(name)));
        if (freed)
            done += name;
        if (freed && QDir().rename(stage.filePath(name), own.filePath(name)))
            continue;
        for (const QString &undo : std::as_const(done)) {
            QDir(own.filePath(undo)).removeRecursively();
            QDir().rename(stage.filePath(before(undo)), own.filePath(undo));
        }
        return false;
    }
    return true;
}

} // namespace

AddedDictionaries addDictionaries(const SpellingServices &services, const QString &path) {
    const DictionaryPackage package = isPackage(path) ? readPackage(path) : readPair(path);
    if (!package.fault.isEmpty())
        return {{}, package.fault};
    const QDir own(userDictionaries(services));
    makePrivateFolder(own.path());
    const QTemporaryDir stage(own.filePath(QStringLiteral(".adding-XXXXXX")));
    if (!stage.isValid())
        return {{}, noRoom(own.path())};
    QStringList names;
    AddedDictionaries added;
    for (const DictionaryContents &dictionary : package.dictionaries) {
        QString fault = nameFault(services, dictionary.baseName);
        if (fault.isEmpty())
            fault = stageOne(QDir(stage.path()), dictionary);
        if (!fault.isEmpty())
            return {{}, fault};
        names += dictionary.baseName;
        added.locales += localeOfFile(dictionary.baseName);
    }
    if (!moveIn(QDir(stage.path()), own, names))
        return {{}, noRoom(own.path())};
    return added;
}

QString removeDictionary(const SpellingServices &services, const DictionaryFiles &files) {
    const QString own = QDir::cleanPath(userDictionaries(services)) + u'/';
    const QFileInfo dic(files.dic);
    if (!QDir::cleanPath(dic.absoluteFilePath())
             .startsWith(QDir::cleanPath(QFileInfo(own).absoluteFilePath())))
        return QStringLiteral("Only dictionaries that you have added can be removed.");
    // Without its words it is a dictionary no longer, whatever becomes of the rest.
    if (!QFile::remove(files.dic) || !QFile::remove(files.aff))
        return QStringLiteral("%1 can't be removed.").arg(QDir::toNativeSeparators(dic.path()));
    if (dic.dir() != QDir(own))
        QDir().rmdir(dic.path());
    return {};
}

QStringList dictionariesToAdd(const QStringList &folders) {
    QStringList paths;
    for (const QString &path : folders) {
        const QDir folder(path);
        for (const QString &name :
             folder.entryList({QStringLiteral("*.oxt"), QStringLiteral("*.dic")}, QDir::Files, QDir::Name)) {
            const QString file = folder.filePath(name);
            if (isPackage(file) || QFileInfo::exists(partner(file, QStringLiteral("aff"))))
                paths += file;
        }
    }
    paths.removeDuplicates();
    return paths;
}

} // namespace tolvo
