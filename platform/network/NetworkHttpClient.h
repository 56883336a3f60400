// SPDX-License-Identifier: MIT
#pragma once

#include "platform/http_client.h"

#include <QtGlobal>
#include <functional>
#include <memory>

class QNetworkAccessManager;
class QNetworkReply;
class QNetworkRequest;

namespace tolvo {

/// The limits of one request.
struct HttpLimits {
    int milliseconds = 60'000;             ///< for the whole request
    qint64 bodyBytes = 16LL * 1024 * 1024; ///< after decompression
};

/// HTTP over Qt Network, without cookies, cache or identifying headers. Redirects are answers like any other.
/// Needs a QCoreApplication. Uses no network before the first request.
class NetworkHttpClient final : public HttpClient {
  public:
    explicit NetworkHttpClient(HttpLimits limits = {});
    ~NetworkHttpClient() override;

    [[nodiscard]] HttpReply get(const QByteArray &encodedUrl) override;
    [[nodiscard]] HttpReply post(const QByteArray &encodedUrl, const QByteArray &body,
                                 const QByteArray &contentType) override;

    /// Asked many times a second while a request runs; true ends it.
    std::function<bool()> cancelled;
    /// Called when a request begins; the result keeps the user's input away as long as it lives. Without it
    /// the input waits until the request is over.
    std::function<std::shared_ptr<void>()> guardInput;

  private:
    [[nodiscard]] QNetworkRequest request(const QByteArray &encodedUrl) const;
    [[nodiscard]] QNetworkAccessManager &network();
    [[nodiscard]] HttpReply await(QNetworkReply &reply);

    HttpLimits m_limits;
    std::unique_ptr<QNetworkAccessManager> m_network;
};

} // namespace tolvo
