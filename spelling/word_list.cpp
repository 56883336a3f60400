// SPDX-License-Identifier: MIT
#include "spelling/word_list.h"

#include "base/code_page.h"
#include "base/failure.h"

#include <QFile>
#include <QLockFile>
#include <QSaveFile>

namespace tolvo {

namespace {

constexpr int patience = 5000; ///< milliseconds that another run may take to write

[[noreturn]] void fail(const QFileDevice &file) {
    throw Failure(failureNumber::fileAccess, file.fileName() + QStringLiteral(": ") + file.errorString());
}

/// The file is one run's while this lives. Where no lock can be made, whole lines still don't mix.
class Turn {
  public:
    explicit Turn(const QString &path) : m_lock(path + QStringLiteral(".lock")) {
        if (!QFile::exists(path))
            throw Failure(failureNumber::fileNotFound, QStringLiteral("File not found: ") + path);
        if (!m_lock.tryLock(patience) && m_lock.error() == QLockFile::LockFailedError)
            throw Failure(failureNumber::fileAccess,
                          path + QStringLiteral(": another program is writing it"));
    }

  private:
    QLockFile m_lock;
};

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

QByteArrayList linesOf(const QString &path) {
    QFile file(path);
    if (!file.exists())
        throw Failure(failureNumber::fileNotFound, QStringLiteral("File not found: ") + path);
    if (!file.open(QIODevice::ReadOnly))
        fail(file);
    QByteArray bytes = file.readAll();
    bytes.replace("\r\n", "\n").replace('\r', '\n');
    if (bytes.isEmpty())
        return {};
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    return bytes.split('\n');
}

} // namespace

QStringList readWordList(const QString &path) {
    QStringList words;
    for (const QByteArray &line : linesOf(path))
        words += decoded(line);
    return words;
}

void appendWords(const QString &path, const QStringList &words) {
    const Turn turn(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Append | QIODevice::ExistingOnly))
        fail(file);
    QByteArray lines;
    // The last line may lack its line end, if an editor has written it.
    char last = '\n';
    if (file.size() > 0 && (!file.seek(file.size() - 1) || !file.getChar(&last)))
        fail(file);
    if (last != '\n' && last != '\r')
        lines = "\r\n";
    for (const QString &word : words)
        lines += word.toUtf8() + "\r\n";
    if (file.write(lines) != lines.size() || !file.flush())
        fail(file);
}

void removeWords(const QString &path, const QStringList &words) {
    const Turn turn(path);
    QByteArray kept;
    for (const QByteArray &line : linesOf(path)) {
        if (!words.contains(decoded(line)))
            kept += line + "\r\n";
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(kept) != kept.size() || !file.commit())
        fail(file);
}

} // namespace tolvo
