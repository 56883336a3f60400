// SPDX-License-Identifier: MIT
// Every tool of the text engine on foreign text: nothing crashes, and what holds for any text holds.
#include "base/failure.h"
#include "fuzz/fuzz.h"
#include "tests/support/silent_host.h"
#include "tests/text/operations.h"

#include <cstring>

using namespace tolvo;
using fuzz::require;

namespace {

void checkLaws(const cTextMethods &engine, const QString &text) {
    const QString trimmed = engine.TrimWhiteSpace(text);
    require(engine.TrimWhiteSpace(trimmed) == trimmed);
    const QString regular = engine.RegularEOL(text);
    require(engine.RegularEOL(regular) == regular);
    const QString spaced = engine.SingleSpace(text);
    require(engine.SingleSpace(spaced) == spaced);
    require(engine.Unindent(engine.Indent(trimmed, u"\t"), u"\t") == trimmed);
    require(!engine.removeExtraLines(text, false, false).endsWith(u"\r\n"));
    require(engine.SentenceCase(text).size() == text.size());
    require(engine.Capitalise(text, true).size() == text.size());
    const qsizetype start = text.size() / 3;
    const qsizetype length = text.size() / 2;
    require(engine.InitialCaps(text, start + 1, length).size() == length);
    require(engine.TitleCase(text, start, length).size() == length);
}

} // namespace

/// The first byte tells how the others become text: as UTF-16, or one byte a character.
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
    for (const test::Operation &operation : test::operations) {
        try {
            (void)operation.run(engine, text);
        } catch (const Failure &) { // a refused text is a defined result
        }
    }
    checkLaws(engine, text);
    return 0;
}
