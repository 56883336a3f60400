// SPDX-License-Identifier: MIT
// One blocking request at a time. The implementation over Qt Network is in network/, so that what needs no
// network links none.
#pragma once

#include <QByteArray>
#include <QString>

namespace tolvo {

struct HttpReply {
    int status = 0; ///< HTTP status; 0 if no answer came at all (refused, timed out, too large, cancelled)
    QString statusText; ///< the reason phrase, or in words why no answer came
    QByteArray body;
    bool cancelled = false; ///< no answer came because the user wanted none any more
};

class HttpClient {
  public:
    virtual ~HttpClient() = default;
    /// A GET on an address that is percent-encoded already. Blocks until the answer is there, at most 60 s in
    /// all; the window stays painted and takes no input but Esc, which cancels. A body above 16 MiB counts as
    /// no answer.
    [[nodiscard]] virtual HttpReply get(const QByteArray &encodedUrl) = 0;
    [[nodiscard]] virtual HttpReply post(const QByteArray &encodedUrl, const QByteArray &body,
                                         const QByteArray &contentType) = 0;
};

} // namespace tolvo
