// SPDX-License-Identifier: MIT
#include "platform/headless/MemoryTextBox.h"
#include "tests/platform/text_box_contract.h"

namespace tolvo {

std::vector<TextBoxKind> textBoxKinds() {
    return {{"Memory", [] { return std::make_unique<MemoryTextBox>(); }}};
}

} // namespace tolvo
