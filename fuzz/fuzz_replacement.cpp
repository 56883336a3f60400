// SPDX-License-Identifier: MIT
// Replacement templates: pattern, template and text, a zero byte between them, through replace all.
#include "fuzz/fuzz.h"
#include "tests/support/silent_search.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    using namespace tolvo;
    static test::SilentSearch world;
    const QStringList parts = fuzz::textOf(data, size).split(QChar(u'\0'));
    if (parts.size() != 3 || parts[2].size() > 60)
        return 0;
    world.boxes.shown.clear();
    world.box.setText(parts[2]);
    world.search.RegExpReplaceAll(parts[0], parts[1], true, size % 2 == 0, false);
    fuzz::require(world.box.length() <= world.box.capacity());
    world.box.setSelStart(0);
    world.box.setSelLength(world.box.length() / 2);
    world.search.RegExpReplace(parts[0], parts[1], false, size % 3 == 0, false, false, true);
    return 0;
}
