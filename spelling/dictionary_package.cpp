// SPDX-License-Identifier: MIT
#include "spelling/dictionary_package.h"

#include "spelling/dictionary_check.h"
#include "spelling/zip_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QXmlStreamReader>
#include <array>
#include <memory>
#include <minizip/unzip.h>

namespace tolvo {

namespace {

constexpr qint64 largestList = 1 << 20;       ///< of dictionaries, in bytes
constexpr qint64 largestContents = 256 << 20; ///< of all files that are read, in bytes
constexpr int mostFiles = 5000;
constexpr int deepestLevel = 32; ///< of the list; a real one has 6

using Zip = std::unique_ptr<void, decltype(&unzClose)>;

/// The largest size of a file that is of use, 0 for any other file.
qint64 limitOf(const QString &name) {
    if (name.endsWith(QStringLiteral(".aff"), Qt::CaseInsensitive))
        return largestAff;
    if (name.endsWith(QStringLiteral(".dic"), Qt::CaseInsensitive))
        return largestDic;
    return name.endsWith(QStringLiteral("dictionaries.xcu")) ? largestList : 0;
}

bool leadsOut(const QString &name) {
    const QStringList parts = QString(name).replace(u'\\', u'/').split(u'/');
    return name.startsWith(u'/') || name.startsWith(u'\\') || name.contains(u':') ||
           name.contains(QChar::Null) || parts.contains(QStringLiteral(".."));
}

/// Reads the files of a zip file one after the other.
class PackageReader {
  public:
    explicit PackageReader(const QString &path)
        : m_file(path), m_zip(openZip(m_file), &unzClose), m_package(QFileInfo(path).fileName()) {}

    /// False with a fault.
    bool read() {
        if (!m_zip)
            return refuse(QStringLiteral("is not a zip file, or is damaged."));
        int count = 0;
        int step = unzGoToFirstFile(m_zip.get());
        for (; step == UNZ_OK; step = unzGoToNextFile(m_zip.get())) {
            if (++count > mostFiles)
                return refuse(QStringLiteral("holds too many files."));
            if (!readCurrent())
                return false;
        }
        return step == UNZ_END_OF_LIST_OF_FILE || refuse(QStringLiteral("is damaged."));
    }

    QHash<QString, QByteArray> files; ///< by their names in the package
    QString fault;

  private:
    bool refuse(const QString &why) {
        fault = m_package + u' ' + why;
        return false;
    }

    bool readCurrent() {
        unz_file_info64 info{};
        std::array<char, 1024> bytes{};
        if (unzGetCurrentFileInfo64(m_zip.get(), &info, bytes.data(), bytes.size() - 1, nullptr, 0, nullptr,
                                    0) != UNZ_OK)
            return refuse(QStringLiteral("is damaged."));
        const QString name = QString::fromUtf8(bytes.data());
        if (info.size_filename >= bytes.size() || leadsOut(name))
            return refuse(QStringLiteral("holds a file that would lie outside of it: ") + name.left(80));
        const qint64 limit = limitOf(name);
        if (limit == 0)
            return true;
        if ((info.flag & 1U) != 0)
            return refuse(QStringLiteral("is encrypted."));
        return readContents(name, limit);
    }

    /// The size that the package states may be wrong: what comes out counts.
    bool readContents(const QString &name, qint64 limit) {
        if (unzOpenCurrentFile(m_zip.get()) != UNZ_OK)
            return refuse(QStringLiteral("is packed in a way that can't be read."));
        QByteArray contents;
        std::array<char, 1 << 16> piece{};
        int length = 0;
        while ((length = unzReadCurrentFile(m_zip.get(), piece.data(), piece.size())) > 0) {
            contents.append(piece.data(), length);
            m_total += length;
            if (contents.size() > limit || m_total > largestContents)
                return refuse(QStringLiteral("is too large when it is unpacked."));
        }
        if (length < 0 || unzCloseCurrentFile(m_zip.get()) != UNZ_OK)
            return refuse(QStringLiteral("is damaged."));
        files.insert(name, contents);
        return true;
    }

    QFile m_file;
    Zip m_zip; ///< reads m_file
    QString m_package;
    qint64 m_total = 0;
};

/// "%origin%/dictionaries/de_AT.aff" is "de_AT.aff".
QString leaf(const QString &path) {
    return path.section(u'/', -1);
}

QHash<QString, QStringList> localesInLists(const QHash<QString, QByteArray> &files) {
    QHash<QString, QStringList> locales;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (limitOf(file.key()) == largestList)
            locales.insert(localesInList(*file));
    }
    return locales;
}

} // namespace

QHash<QString, QStringList> localesInList(const QByteArray &xcu) {
    QHash<QString, QStringList> found;
    QHash<QString, QString> values; // of the node that is being read, by the name of the property
    QString property;
    QXmlStreamReader reader(xcu);
    reader.setNamespaceProcessing(false);
    for (int depth = 0; !reader.atEnd() && depth <= deepestLevel;) {
        const QXmlStreamReader::TokenType token = reader.readNext();
        if (token == QXmlStreamReader::DTD)
            break;
        if (token == QXmlStreamReader::StartElement) {
            ++depth;
            if (reader.qualifiedName() == u"prop")
                property = reader.attributes().value(QStringLiteral("oor:name")).toString();
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
            if (reader.qualifiedName() != u"node")
                continue;
            const QStringList locales =
                values.value(QStringLiteral("Locales")).split(u' ', Qt::SkipEmptyParts);
            for (const QString &path :
                 values.value(QStringLiteral("Locations")).split(u' ', Qt::SkipEmptyParts))
                found.insert(leaf(path), locales);
            values.clear();
        } else if (token == QXmlStreamReader::Characters) {
            values[property] += reader.text().toString().simplified() + u' ';
        }
    }
    return found;
}

DictionaryPackage readPackage(const QString &path) {
    PackageReader reader(path);
    if (!reader.read())
        return {{}, reader.fault};
    const QHash<QString, QStringList> locales = localesInLists(reader.files);
    DictionaryPackage package;
    QSet<QString> taken;
    QStringList names = reader.files.keys();
    names.sort();
    for (const QString &name : std::as_const(names)) {
        const QString dic = name.chopped(3) + QStringLiteral("dic");
        if (!name.endsWith(QStringLiteral(".aff")) || !reader.files.contains(dic))
            continue;
        QString baseName = locales.value(leaf(name)).value(0).replace(u'-', u'_');
        if (baseName.isEmpty() || taken.contains(baseName))
            baseName = leaf(name).chopped(4);
        taken.insert(baseName);
        package.dictionaries += {baseName, reader.files.value(name), reader.files.value(dic)};
    }
    if (package.dictionaries.isEmpty())
        package.fault = QFileInfo(path).fileName() +
                        QStringLiteral(" holds no dictionary: no pair of an .aff and a .dic file.");
    return package;
}

} // namespace tolvo
