// SPDX-License-Identifier: MIT
// What every text box keeps to. A program with text boxes of its own compiles text_box_contract.cpp and says
// which ones it has.
#pragma once

#include "platform/text_box.h"
#include "tests/support/print.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tolvo {

struct TextBoxKind {
    std::string name;
    std::function<std::unique_ptr<TextBox>()> make;
};

std::vector<TextBoxKind> textBoxKinds();

} // namespace tolvo
