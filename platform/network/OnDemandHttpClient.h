// SPDX-License-Identifier: MIT
#pragma once

#include "platform/http_client.h"

#include <functional>
#include <memory>

namespace tolvo {

/// HTTP for a program that seldom needs it: the network libraries don't slow its start but come with the
/// first request, in the module "tolvo-network" beside the program. A module that can't be loaded is no
/// answer, and the reply says why.
class OnDemandHttpClient final : public HttpClient {
  public:
    explicit OnDemandHttpClient(QString programFolder) : m_programFolder(std::move(programFolder)) {}

    [[nodiscard]] HttpReply get(const QByteArray &encodedUrl) override;
    [[nodiscard]] HttpReply post(const QByteArray &encodedUrl, const QByteArray &body,
                                 const QByteArray &contentType) override;

    /// As those of NetworkHttpClient.
    std::function<bool()> cancelled;
    std::function<std::shared_ptr<void>()> guardInput;

  private:
    [[nodiscard]] HttpReply ask(const std::function<HttpReply(HttpClient &)> &request);
    /// Empty if all is well, else why there is no client.
    [[nodiscard]] QString load();

    QString m_programFolder;
    std::unique_ptr<HttpClient> m_client;
};

} // namespace tolvo
