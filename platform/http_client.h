// SPDX-License-Identifier: MIT
// HTTP (RFC 9110), one blocking request at a time. The implementation over Qt Network is in network/, so that
// a program without requests doesn't link it.
#pragma once

#include <QByteArray>
#include <QString>

namespace tolvo {

/// The reply to a request, or why there is none.
struct HttpReply {
    int status = 0; ///< HTTP status; 0 if no answer came at all (refused, timed out, too large, cancelled)
    QString statusText; ///< the reason phrase, or why no answer came
    QByteArray body;
    bool cancelled = false; ///< no answer came because the user ended the wait
};

/// Sends requests.
class HttpClient {
  public:
    virtual ~HttpClient() = default;
    /// Sends a GET to an address that is percent-encoded already. Blocks until the answer has arrived, for 60
    /// s at most; the window stays painted and takes no input but Esc, which cancels. A body above 16 MiB
    /// counts as no answer.
    [[nodiscard]] virtual HttpReply get(const QByteArray &encodedUrl) = 0;
    /// Sends a POST in the same way.
    [[nodiscard]] virtual HttpReply post(const QByteArray &encodedUrl, const QByteArray &body,
                                         const QByteArray &contentType) = 0;
};

} // namespace tolvo
