// SPDX-License-Identifier: MIT
#include "spelling/dictionaries.h"

#include "base/code_page.h"
#include "base/failure.h"
#include "base/paths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringConverter>

namespace tolvo {

namespace {

QString personalName() {
    return QStringLiteral("persdict.dat");
}

QString programDictionaries(const QString &programFolder) {
    return sAppPath(programFolder) + QStringLiteral("Dictionaries");
}

QString normalised(const QString &fileName) {
    return QString(fileName).replace(u'-', u'_').toLower();
}

/// The entry of `folder` that is `name` apart from case and "-" for "_"; empty if there is none.
QString fileLike(const QDir &folder, const QString &name) {
    if (folder.exists(name))
        return folder.filePath(name);
    for (const QString &entry : folder.entryList(QDir::Files, QDir::Name)) {
        if (normalised(entry) == normalised(name))
            return folder.filePath(entry);
    }
    return {};
}

/// Written by this program as UTF-8; a list from elsewhere may be in the 8-bit code page.
QString decoded(const QByteArray &bytes) {
    QStringDecoder utf8(QStringConverter::Utf8);
    QString text = utf8(bytes);
    if (!utf8.hasError())
        return text;
    text.clear();
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += QChar(fromAnsi(static_cast<std::uint8_t>(byte)));
    return text;
}

} // namespace

QStringList dictionaryFolders(const QString &programFolder) {
    QStringList folders{programDictionaries(programFolder)};
    for (const QString &data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        for (const QLatin1String name :
             {QLatin1String("/hunspell"), QLatin1String("/myspell"), QLatin1String("/myspell/dicts")})
            folders += data + name;
    }
    return folders;
}

std::optional<DictionaryFiles> findDictionary(const QString &locale, const QStringList &folders) {
    // A locale is a name, never a way to another folder.
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

QString personalDictionaryPath(const SpellingServices &services) {
    const QString beside = programDictionaries(services.programFolder);
    const QFileInfo folder(beside);
    if (folder.isDir() && folder.isWritable())
        return beside + u'/' + personalName();
    return services.userFolder + u'/' + personalName();
}

void ensurePersonalDictionary(const SpellingServices &services) {
    const QString path = personalDictionaryPath(services);
    if (QFile::exists(path))
        return;
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    // NewOnly: another run may have made it, with a word in it, in the meantime.
    (void)file.open(QIODevice::WriteOnly | QIODevice::NewOnly);
}

QStringList readPersonalDictionary(const QString &path) {
    QFile file(path);
    if (!file.exists())
        throw Failure(failureNumber::fileNotFound, QStringLiteral("File not found: ") + path);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure(failureNumber::fileAccess, path + QStringLiteral(": ") + file.errorString());
    QString text = decoded(file.readAll());
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    if (text.isEmpty())
        return {};
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.split(u'\n');
}

void appendWord(const QString &path, const QString &word) {
    QFile file(path);
    if (!file.exists())
        throw Failure(failureNumber::fileNotFound, QStringLiteral("File not found: ") + path);
    const QByteArray line = word.toUtf8() + "\r\n";
    if (!file.open(QIODevice::Append) || file.write(line) != line.size() || !file.flush())
        throw Failure(failureNumber::fileAccess, path + QStringLiteral(": ") + file.errorString());
}

} // namespace tolvo
