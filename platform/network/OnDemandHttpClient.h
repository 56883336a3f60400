// SPDX-License-Identifier: MIT
#pragma once

#include "platform/http_client.h"

#include <functional>
#include <memory>

namespace tolvo {

/// HTTP for a program that seldom needs it: the first request loads the network libraries, in the module
/// "tolvo-network" beside the program, so they don't slow the start. If the module can't be loaded, there is
/// no answer, and the reply says why.
class OnDemandHttpClient final : public HttpClient {
  public:
    explicit OnDemandHttpClient(QString programFolder) : m_programFolder(std::move(programFolder)) {}

    [[nodiscard]] HttpReply get(const QByteArray &encodedUrl) override;
    [[nodiscard]] HttpReply post(const QByteArray &encodedUrl, const QByteArray &body,
                                 const QByteArray &contentType) override;

    /// See NetworkHttpClient.
    std::function<bool()> cancelled;
    std::function<std::shared_ptr<void>()> guardInput;

  private:
    [[nodiscard]] HttpReply ask(const std::function<HttpReply(HttpClient &)> &request);
    /// Makes the client. Returns why that failed, or the empty string.
    [[nodiscard]] QString load();

    QString m_programFolder;
    std::unique_ptr<HttpClient> m_client;
};

} // namespace tolvo
