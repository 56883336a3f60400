// SPDX-License-Identifier: MIT
#pragma once

#include "platform/headless/ConsoleBoxes.h"
#include "tests/support/print.h"

#include <gtest/gtest.h>
#include <utility>

namespace tolvo::test {

/// Keeps boxes for a test, which has to name each of them: one that nobody took fails the test in the end.
class NamedBoxes final : public RecordingBoxes {
  public:
    ~NamedBoxes() override {
        for (const Box &box : shown)
            ADD_FAILURE() << "nobody named the box " << ::testing::PrintToString(box.text);
    }
    /// All that nobody has taken yet, the oldest first.
    [[nodiscard]] std::vector<Box> take() { return std::exchange(shown, {}); }
    /// The text of the oldest of them; without one the test fails.
    [[nodiscard]] QString takeOldest() {
        if (shown.empty()) {
            ADD_FAILURE() << "there is no box";
            return {};
        }
        const QString text = shown.front().text;
        shown.erase(shown.begin());
        return text;
    }
    /// The texts of all of them: "Text not found/1 string replaced".
    [[nodiscard]] QString said() {
        QString texts;
        for (const Box &box : take())
            texts += (texts.isEmpty() ? QString() : QStringLiteral("/")) + box.text;
        return texts;
    }
};

} // namespace tolvo::test
