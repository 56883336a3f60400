// SPDX-License-Identifier: MIT
#include "spelling/dictionaries.h"

#include "base/code_page.h"
#include "base/failure.h"
#include "base/paths.h"
#include "base/private_files.h"
#include "spelling/dictionary_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tolvo {

namespace {

QString personalName() {
    return QStringLiteral("persdict.dat");
}

QString programDictionaries(const QString &dataFolder) {
    return sAppPath(dataFolder) + QStringLiteral("Dictionaries");
}

QString normalised(const QString &fileName) {
    return QString(fileName).replace(u'-', u'_').toLower();
}

/// The entry of `folder` that equals `name` apart from case and "-" for "_"; empty if there is none.
QString fileLike(const QDir &folder, const QString &name) {
    if (folder.exists(name))
        return folder.filePath(name);
    for (const QString &entry : folder.entryList(QDir::Files, QDir::Name)) {
        if (normalised(entry) == normalised(name))
            return folder.filePath(entry);
    }
    return {};
}

/// The text of a line. This program writes UTF-8; other programs may use the 8-bit code page.
QString decoded(const QByteArray &bytes) {
    if (bytes.isValidUtf8())
        return QString::fromUtf8(bytes);
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += QChar(fromAnsi(static_cast<std::uint8_t>(byte)));
    return text;
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

void ensurePersonalDictionary(const SpellingServices &services) {
    const QString path = personalDictionaryPath(services);
    if (QFile::exists(path))
        return;
    makePrivateFolder(QFileInfo(path).path());
    makePrivateFile(path);
}

QStringList readPersonalDictionary(const QString &path) {
    QFile file(path);
    if (!file.exists())
        throw Failure(failureNumber::fileNotFound, QStringLiteral("File not found: ") + path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(failureNumber::fileAccess, path + QStringLiteral(": ") + file.errorString());
    QByteArray bytes = file.readAll();
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    if (bytes.isEmpty())
        return {};
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    QStringList words;
    for (const QByteArray &line : bytes.split('\n'))
        words += decoded(line);
    return words;
}

void appendWord(const QString &path, const QString &word) {
    QFile file(path);
    if (!file.exists())
        throw Failure(failureNumber::fileNotFound, QStringLiteral("File not found: ") + path);
    const auto fail = [&] {
        throw Failure(failureNumber::fileAccess, path + QStringLiteral(": ") + file.errorString());
    };
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::ExistingOnly))
        fail();
    QByteArray line = word.toUtf8() + "\r\n";
    // The last line may lack its line end, if an editor has written it.
    char last = '\n';
    if (file.size() > 0 && (!file.seek(file.size() - 1) || !file.getChar(&last)))
        fail();
    if (last != '\n' && last != '\r')
        line.prepend("\r\n");
    if (file.write(line) != line.size() || !file.flush())
        fail();
}

} // namespace tolvo
