// SPDX-License-Identifier: MIT
// Every text operation of the tools on foreign text: nothing crashes, and what holds for any text holds.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "tests/support/operations.h"
#include "tests/text/laws.h"

#include <cstring>

using namespace tolvo;

/// The first byte says how the others become text: as UTF-16, or one byte a character.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    if (size == 0)
        return 0;
    const auto length = static_cast<qsizetype>(size - 1);
    QString text = QString::fromLatin1(reinterpret_cast<const char *>(data) + 1, length);
    if (data[0] % 4 == 0) {
        text.resize(length / 2);
        std::memcpy(text.data(), data + 1, static_cast<std::size_t>(length / 2) * 2);
    }
    static test::SilentHost host;
    static const cTextMethods engine(host, [](const QString &extension) { return extension == u"txt"; });
    static const std::vector<test::Operation> operations = test::operations();
    for (const test::Operation &operation : operations) {
        try {
            (void)operation.run(engine, text);
        } catch (const Failure &) { // a refused text is a defined result
        }
    }
    for (const test::Law &law : test::laws)
        fuzz::require(law.holds(engine, text));
    return 0;
}
