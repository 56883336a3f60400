// SPDX-License-Identifier: MIT
// The interface between the module "tolvo-network" and the program that loads it.
#pragma once

#include "platform/http_client.h"

#include <QLatin1StringView>
#include <functional>
#include <memory>

namespace tolvo {

/// The file's name without its ending, which depends on the platform.
constexpr QLatin1StringView networkModuleName{"tolvo-network"};
constexpr const char *networkModuleEntry = "tolvoMakeHttpClient";

/// The module's one function: a new client, which belongs to the caller.
using MakeHttpClient = HttpClient *(*)(const std::function<bool()> &cancelled,
                                       const std::function<std::shared_ptr<void>()> &guardInput);

} // namespace tolvo
