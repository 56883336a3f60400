// SPDX-License-Identifier: MIT
#include "shell/text_file.h"

#include "base/text_encoding.h"

#include <QFile>
#include <QFileInfo>

namespace tolvo {

namespace {

constexpr qint64 largest = qint64{64} * 1024 * 1024;

TextFile refused(const QString &name, const QString &why) {
    return {name, std::nullopt, QStringLiteral("'%1' %2").arg(name, why)};
}

} // namespace

TextFile readTextFile(const QString &path) {
    const QFileInfo info(path);
    const QString name = info.fileName();
    if (!info.isFile()) // pipes and devices would wait for ever
        return refused(name, info.isDir() ? QStringLiteral("is a folder. Tolvo can take files only.")
                                          : QStringLiteral("is not a file that Tolvo can read."));
    if (info.size() > largest)
        return refused(name, QStringLiteral("is too large for Tolvo."));
    QFile file(path);
    const bool opened = file.open(QIODevice::ReadOnly);
    const QByteArray bytes = opened ? file.readAll() : QByteArray();
    if (!opened || file.error() != QFileDevice::NoError)
        return refused(name, QStringLiteral("can't be read: %1.").arg(file.errorString()));
    if (std::optional<QString> text = decodedText(bytes))
        return {name, std::move(text), {}};
    return refused(name, QStringLiteral("does not hold text. Nothing has been changed."));
}

} // namespace tolvo
