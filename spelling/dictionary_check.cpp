// SPDX-License-Identifier: MIT
#include "spelling/dictionary_check.h"

#include "spelling/dictionary_encoding.h"
#include "spelling/hunspell_engine.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>

namespace tolvo {

namespace {

constexpr qsizetype longestLine = 4096; ///< that is looked at, in bytes

QString leaf(const QString &path) {
    return QFileInfo(path).fileName();
}

QByteArray withoutMark(QByteArray line) {
    if (line.startsWith("\xEF\xBB\xBF"))
        line.remove(0, 3);
    return line.trimmed();
}

/// A dictionary starts with the number of its words. Given any other file, the library prints an error and
/// then accepts no word; it makes room for as many words as the number says.
QString countFault(const QString &dic) {
    QFile file(dic);
    if (!file.open(QIODevice::ReadOnly))
        return leaf(dic) + QStringLiteral(" can't be read.");
    const QByteArray line = withoutMark(file.readLine(longestLine));
    bool isNumber = false;
    const qint64 count = line.split(' ').first().split('\t').first().toLongLong(&isNumber);
    if (!isNumber || count <= 0)
        return leaf(dic) + QStringLiteral(" is not a list of words: it doesn't begin with their number.");
    constexpr qint64 harmless = 1'000'000;
    if (count > std::max(harmless, file.size()))
        return leaf(dic) + QStringLiteral(" claims to hold more words than it can.");
    return {};
}

/// The name after SET, empty if there is none.
QByteArray declaredEncoding(const QString &aff) {
    QFile file(aff);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    while (!file.atEnd()) {
        const QByteArray line = withoutMark(file.readLine(longestLine));
        if (line.startsWith("SET ") || line.startsWith("SET\t"))
            return line.mid(4).trimmed();
    }
    return {};
}

QString encodingFault(const DictionaryFiles &files, const QByteArray &words) {
    const QByteArray name = declaredEncoding(files.aff);
    if (!DictionaryEncoding(name).isValid())
        return leaf(files.aff) + QStringLiteral(" names an encoding that isn't known: ") +
               QString::fromLatin1(name.left(40));
    const bool isAscii = std::all_of(words.cbegin(), words.cend(), [](char byte) { return byte >= 0; });
    if (isAscii || (name.toUpper() == "UTF-8") == words.isValidUtf8())
        return {};
    return leaf(files.dic) + QStringLiteral(" isn't written in the encoding that ") + leaf(files.aff) +
           QStringLiteral(" names.");
}

/// Whether the dictionary accepts a word of its own list; some lists begin with parts of words.
bool knowsItself(const DictionaryFiles &files, const QByteArray &words) {
    HunspellEngine engine;
    if (!engine.init(files.aff, files.dic))
        return false;
    constexpr int tries = 2000;
    DictionaryEncoding encoding(declaredEncoding(files.aff));
    const QList<QByteArray> lines = words.split('\n');
    const qsizetype step = std::max<qsizetype>(1, lines.size() / tries);
    for (qsizetype i = 1; i < lines.size(); i += step) {
        const QByteArray word = lines[i].split('\t').first().split('/').first().trimmed();
        if (!word.isEmpty() && engine.Spell(encoding.decode(word.toStdString())))
            return true;
    }
    return false;
}

} // namespace

QString fileFault(const DictionaryFiles &files) {
    const std::pair<QString, qint64> limits[] = {{files.aff, largestAff}, {files.dic, largestDic}};
    for (const auto &[path, limit] : limits) {
        const QFileInfo file(path);
        if (!file.isFile())
            return leaf(path) + QStringLiteral(" is missing.");
        if (!file.isReadable())
            return leaf(path) + QStringLiteral(" can't be read.");
        if (file.size() == 0)
            return leaf(path) + QStringLiteral(" is empty.");
        if (file.size() > limit)
            return leaf(path) +
                   QStringLiteral(" is too large: such a file may have at most %1 MB.").arg(limit >> 20);
    }
    return countFault(files.dic);
}

QString dictionaryFault(const DictionaryFiles &files) {
    if (QString fault = fileFault(files); !fault.isEmpty())
        return fault;
    QFile dic(files.dic);
    if (!dic.open(QIODevice::ReadOnly))
        return leaf(files.dic) + QStringLiteral(" can't be read.");
    const QByteArray words = dic.readAll();
    if (QString fault = encodingFault(files, words); !fault.isEmpty())
        return fault;
    if (!knowsItself(files, words))
        return leaf(files.aff) + QStringLiteral(" and ") + leaf(files.dic) +
               QStringLiteral(" don't fit together: not one of the words is accepted.");
    return {};
}

} // namespace tolvo
