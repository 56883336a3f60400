// SPDX-License-Identifier: MIT
// What is said to be wrong with a text: what must be found, and what must not cry wolf.
#include "shell/text_troubles.h"
#include "tests/support/examples.h"
#include "tests/support/pictures.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

using namespace tolvo;

namespace {

TEST(TextTroubles, areFoundByTheToolThatMendsThem) {
    test::forEachExample(
        "/tests/shell/trouble_examples.txt", [](const QString &section, const QStringList &row) {
            const QList<Trouble> troubles = textTroubles(test::readPicture(row[0]).text);
            QStringList seen;
            if (section == u"Places") {
                ASSERT_EQ(troubles.size(), 1);
                for (const LinePart &part : troubles.front().places)
                    seen += QStringLiteral("%1+%2+%3").arg(part.line).arg(part.column).arg(part.length);
            } else {
                for (const Trouble &trouble : troubles)
                    seen += trouble.token;
            }
            EXPECT_EQ(seen.join(u' '), row[1]);
        });
}

TEST(TextTroubles, endEarlyWhenCancelled) {
    Cancellation cancelled;
    cancelled.cancel();
    EXPECT_TRUE(textTroubles(QStringLiteral("a &lt; b"), cancelled).isEmpty());
}

} // namespace
