// SPDX-License-Identifier: MIT
#include "spelling/word_automation.h"

#include "base/failure.h"

namespace tolvo {

std::unique_ptr<WordApplication> NoWordAutomation::create() {
    throw Failure(failureNumber::objectNotCreated, QStringLiteral("Microsoft Word can't be started"));
}

} // namespace tolvo
