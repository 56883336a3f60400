// SPDX-License-Identifier: MIT
#include "platform/network/NetworkHttpClient.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

namespace tolvo {

namespace {

HttpReply noAnswer(const QString &why, bool wasCancelled = false) {
    return {.status = 0, .statusText = why, .body = {}, .cancelled = wasCancelled};
}

} // namespace

NetworkHttpClient::NetworkHttpClient(HttpLimits limits) : m_limits(limits) {
}
NetworkHttpClient::~NetworkHttpClient() = default;

HttpReply NetworkHttpClient::get(const QByteArray &encodedUrl) {
    const std::unique_ptr<QNetworkReply> reply(network().get(request(encodedUrl)));
    return await(*reply);
}

HttpReply NetworkHttpClient::post(const QByteArray &encodedUrl, const QByteArray &body,
                                  const QByteArray &contentType) {
    QNetworkRequest post = request(encodedUrl);
    post.setHeader(QNetworkRequest::ContentTypeHeader, contentType);
    const std::unique_ptr<QNetworkReply> reply(network().post(post, body));
    return await(*reply);
}

QNetworkRequest NetworkHttpClient::request(const QByteArray &encodedUrl) const {
    QNetworkRequest request(QUrl::fromEncoded(encodedUrl));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    return request;
}

QNetworkAccessManager &NetworkHttpClient::network() {
    if (!m_network)
        m_network = std::make_unique<QNetworkAccessManager>();
    return *m_network;
}

HttpReply NetworkHttpClient::await(QNetworkReply &reply) {
    const std::shared_ptr<void> guard = guardInput ? guardInput() : nullptr;
    QEventLoop loop;
    QByteArray body;
    QString stopped; // why the request was given up, if it was
    const auto stop = [&](const QString &why) {
        stopped = why;
        loop.quit();
    };
    const auto readOn = [&] {
        body += reply.readAll();
        if (body.size() > m_limits.bodyBytes)
            stop(QStringLiteral("The answer is too large"));
    };
    reply.setReadBufferSize(1LL * 1024 * 1024); // a fast sender has to wait instead of filling the memory
    QObject::connect(&reply, &QIODevice::readyRead, &loop, readOn);
    QObject::connect(&reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer limit;
    limit.setSingleShot(true);
    QObject::connect(&limit, &QTimer::timeout, &loop,
                     [&] { stop(QStringLiteral("The server did not answer in time")); });
    limit.start(m_limits.milliseconds);
    QTimer cancelWatch;
    bool wasCancelled = false;
    QObject::connect(&cancelWatch, &QTimer::timeout, &loop, [&] {
        wasCancelled = cancelled();
        if (wasCancelled)
            stop(QStringLiteral("The request was cancelled"));
    });
    if (cancelled)
        cancelWatch.start(50);

    if (!reply.isFinished())
        loop.exec(guard ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    if (stopped.isEmpty())
        readOn();
    QObject::disconnect(&reply, nullptr, &loop, nullptr);
    if (!stopped.isEmpty()) {
        reply.abort();
        return noAnswer(stopped, wasCancelled);
    }
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    // Errors from 201 on repeat the HTTP status; below that the answer broke off or never came.
    if (status == 0 ||
        (reply.error() != QNetworkReply::NoError && reply.error() < QNetworkReply::ContentAccessDenied))
        return noAnswer(reply.errorString());
    return {.status = status,
            .statusText = reply.attribute(QNetworkRequest::HttpReasonPhraseAttribute).toString(),
            .body = body};
}

} // namespace tolvo
