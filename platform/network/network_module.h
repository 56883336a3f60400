// SPDX-License-Identifier: MIT
// What the module "tolvo-network" and the program that loads it agree on.
#pragma once

#include "platform/http_client.h"

#include <QLatin1StringView>
#include <functional>
#include <memory>

namespace tolvo {

/// The file's name without its ending, which each platform has its own for.
constexpr QLatin1StringView networkModuleName{"tolvo-network"};
constexpr const char *networkModuleEntry = "tolvoMakeHttpClient";

/// The module's one function: a new client, which belongs to the caller.
using MakeHttpClient = HttpClient *(*)(const std::function<bool()> &cancelled,
                                       const std::function<std::shared_ptr<void>()> &guardInput);

} // namespace tolvo
