// SPDX-License-Identifier: MIT
// A Locales.txt of any content is read; every locale that it gives has a number that leads back to one.
#include "fuzz/fuzz.h"
#include "spelling/locales.h"

#include <QTemporaryFile>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static QTemporaryFile file;
    tolvo::fuzz::require(file.isOpen() || file.open());
    file.resize(0);
    file.seek(0);
    file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
    file.flush();
    const tolvo::Locales locales(file.fileName());
    for (const int number : {1, 7, 1033, 2057}) {
        const QString locale = locales.localeOf(number);
        tolvo::fuzz::require(locale.isEmpty() || locales.idOf(locale, -12345) != -12345);
    }
    return 0;
}
