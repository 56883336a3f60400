// SPDX-License-Identifier: MIT
// Ready-made PowerButtons that a new user can load into an empty one.
#pragma once

#include "powerbuttons/CPowerButton.h"
#include "powerbuttons/catalogue.h"

#include <QList>
#include <memory>

namespace tolvo {

/// The examples, each a button of its own. An example whose tools the catalogue doesn't all know is left out.
[[nodiscard]] QList<std::shared_ptr<CPowerButton>> exampleButtons(const Catalogue &tools);

} // namespace tolvo
