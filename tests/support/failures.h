// SPDX-License-Identifier: MIT
#pragma once

#include "base/failure.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>

namespace tolvo {

/// Runs what has to end in a failure of that number, described with these words.
template <class Action>
void expectFailure(int number, Action action, const QString &words = {}) {
    try {
        action();
        ADD_FAILURE() << "no failure " << number << ", " << shown(words);
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), number) << shown(failure.description());
        EXPECT_TRUE(failure.description().contains(words)) << shown(failure.description());
    }
}

} // namespace tolvo
