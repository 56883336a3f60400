// SPDX-License-Identifier: MIT
#include "platform/network/network_module.h"

#include "platform/network/NetworkHttpClient.h"

extern "C" Q_DECL_EXPORT tolvo::HttpClient *
tolvoMakeHttpClient(const std::function<bool()> &cancelled,
                    const std::function<std::shared_ptr<void>()> &guardInput) {
    auto client = std::make_unique<tolvo::NetworkHttpClient>();
    client->cancelled = cancelled;
    client->guardInput = guardInput;
    return client.release();
}
