// SPDX-License-Identifier: MIT
#include "platform/headless/MemoryTextBox.h"
#include "tests/platform/text_box_contract.h"

#include <gtest/gtest.h>

namespace tolvo {

std::vector<TextBoxKind> textBoxKinds() {
    return {{"Memory", [] { return std::make_unique<MemoryTextBox>(); }}};
}

TEST(MemoryTextBox, TakesAnyTextIfUnlimited) {
    MemoryTextBox box(MemoryTextBox::unlimited);
    const QString large(16 * 1024 * 1024, u'x');
    box.setText(large);
    box.setSelStart(1);
    box.setSelText(large);
    EXPECT_EQ(box.length(), 2 * large.size());
}

} // namespace tolvo
