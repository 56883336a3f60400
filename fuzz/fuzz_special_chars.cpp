// SPDX-License-Identifier: MIT
// Escapes in search and replacement texts: they end, never grow the text beyond a line end for two
// characters, and either all are translated or the text is empty.
#include "fuzz/fuzz.h"
#include "tests/support/silent_search.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace tolvo;
    static test::SilentSearch world;
    world.boxes.shown.clear();
    const QString before = fuzz::textOf(data, size);
    QString text = before;
    const QString result = world.search.translateSpecialChars(text, size % 2 == 0);
    fuzz::require(result == text && result.size() <= before.size());
    fuzz::require(world.boxes.shown.empty() || result.isEmpty());
    return 0;
}
