// SPDX-License-Identifier: MIT
#include "pipe/streams.h"

#include "base/failure.h"
#include "base/utf8.h"
#include "pipe/session.h"
#include "pipe/text.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#endif

namespace tolvo {

namespace {

constexpr qsizetype pieceSize = 1 << 16;

/// Where the piece that begins at `start` ends.
qsizetype pieceEnd(const QString &text, qsizetype start) {
    qsizetype end = std::min(start + pieceSize, text.size());
    while (end < text.size() && (text[end - 1] == u'\r' || text[end - 1].isHighSurrogate()))
        ++end;
    return end;
}

void writeBytes(const QByteArray &bytes) {
    const auto size = static_cast<size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) != size)
        throw Failure(failureNumber::fileAccess, QStringLiteral("standard output can't be written"));
}

} // namespace

void useBinaryStreams() {
#ifdef _WIN32
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}

QString readStandardInput() {
    QString text;
    QByteArray buffer(pieceSize, Qt::Uninitialized);
    qint64 offset = 0;  // of the buffer's first byte in the whole input
    qsizetype kept = 0; // bytes of a sequence that the last piece cut
    for (bool more = true; more;) {
        const size_t wanted = static_cast<size_t>(buffer.size() - kept);
        const size_t got = std::fread(buffer.data() + kept, 1, wanted, stdin);
        more = got == wanted;
        const QByteArrayView bytes(buffer.constData(), kept + static_cast<qsizetype>(got));
        const QByteArrayView whole = more ? bytes.first(wholeSequences(bytes)) : bytes;
        if (const auto bad = firstBadByte(whole))
            throw BadRequest(QStringLiteral("the text is not UTF-8: byte %1").arg(offset + *bad));
        text += fromUtf8(whole);
        offset += whole.size();
        kept = bytes.size() - whole.size();
        std::memmove(buffer.data(), whole.end(), static_cast<size_t>(kept));
    }
    if (std::ferror(stdin))
        throw Failure(failureNumber::fileAccess, QStringLiteral("standard input can't be read"));
    return text;
}

void writeStandardOutput(const QString &text, const std::function<QString(const QString &)> &convert) {
    for (qsizetype start = 0; start < text.size();) {
        const qsizetype end = pieceEnd(text, start);
        writeBytes(utf8Of(convert(text.sliced(start, end - start))));
        start = end;
    }
    if (std::fflush(stdout) != 0)
        throw Failure(failureNumber::fileAccess, QStringLiteral("standard output can't be written"));
}

void writeStandardOutput(const QString &text) {
    writeStandardOutput(text, [](const QString &piece) { return piece; });
}

} // namespace tolvo
