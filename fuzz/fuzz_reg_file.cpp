// SPDX-License-Identifier: MIT
// Foreign files in the registry editor's format: each is read or refused in words, and what was read survives
// being written and read again.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "preferences/reg_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace tolvo;
    const QByteArray file(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    QList<RegKey> keys;
    try {
        keys = readRegFile(file);
    } catch (const Failure &) {
        return 0;
    }
    QByteArray written;
    try {
        written = writeRegFile(keys);
    } catch (const Failure &) { // a name that the format can't carry
        return 0;
    }
    fuzz::require(readRegFile(written) == keys);
    return 0;
}
