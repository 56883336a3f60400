// SPDX-License-Identifier: MIT
#include "spelling/word_automation.h"

namespace tolvo {

std::unique_ptr<WordAutomation> wordOfSystem() {
    return std::make_unique<NoWordAutomation>();
}

} // namespace tolvo
