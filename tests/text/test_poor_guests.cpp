// SPDX-License-Identifier: MIT
// The text engine keeps its promises about texts that nobody would write.
#include "tests/support/poor_guests.h"
#include "tests/text/engine.h"
#include "tests/text/laws.h"

using namespace tolvo;
using namespace tolvo::test;

namespace {

using PoorGuests = Engine;

TEST_F(PoorGuests, keepTheLaws) {
    for (const QString &text : guests()) {
        for (const Law &law : laws)
            EXPECT_TRUE(law.holds(engine, text)) << shown(text.left(10)) << " in " << law.name;
    }
}

} // namespace
