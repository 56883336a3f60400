// SPDX-License-Identifier: MIT
#include "spelling/zip_file.h"

namespace tolvo {

namespace {

QFile &fileOf(void *stream) {
    return *static_cast<QFile *>(stream);
}

void *ZCALLBACK openFile(void *file, const void *, int) {
    return fileOf(file).open(QIODevice::ReadOnly) ? file : nullptr;
}

uLong ZCALLBACK readFile(void *, void *stream, void *bytes, uLong size) {
    const qint64 got = fileOf(stream).read(static_cast<char *>(bytes), static_cast<qint64>(size));
    return got < 0 ? 0 : static_cast<uLong>(got);
}

uLong ZCALLBACK writeNothing(void *, void *, const void *, uLong) {
    return 0;
}

ZPOS64_T ZCALLBACK place(void *, void *stream) {
    return static_cast<ZPOS64_T>(fileOf(stream).pos());
}

long ZCALLBACK seek(void *, void *stream, ZPOS64_T offset, int origin) {
    QFile &file = fileOf(stream);
    qint64 start = 0;
    if (origin == ZLIB_FILEFUNC_SEEK_CUR)
        start = file.pos();
    else if (origin == ZLIB_FILEFUNC_SEEK_END)
        start = file.size();
    return file.seek(start + static_cast<qint64>(offset)) ? 0 : -1;
}

int ZCALLBACK closeFile(void *, void *stream) {
    fileOf(stream).close();
    return 0;
}

int ZCALLBACK errorOf(void *, void *stream) {
    return fileOf(stream).error() == QFileDevice::NoError ? 0 : 1;
}

} // namespace

unzFile openZip(QFile &file) {
    zlib_filefunc64_def calls{openFile, readFile, writeNothing, place, seek, closeFile, errorOf, &file};
    return unzOpen2_64("", &calls);
}

} // namespace tolvo
