// SPDX-License-Identifier: MIT
#include "platform/network/OnDemandHttpClient.h"

#include "base/paths.h"
#include "platform/network/network_module.h"

#include <QLibrary>

namespace tolvo {

HttpReply OnDemandHttpClient::get(const QByteArray &encodedUrl) {
    return ask([&](HttpClient &client) { return client.get(encodedUrl); });
}

HttpReply OnDemandHttpClient::post(const QByteArray &encodedUrl, const QByteArray &body,
                                   const QByteArray &contentType) {
    return ask([&](HttpClient &client) { return client.post(encodedUrl, body, contentType); });
}

HttpReply OnDemandHttpClient::ask(const std::function<HttpReply(HttpClient &)> &request) {
    if (const QString trouble = load(); !trouble.isEmpty())
        return {.status = 0, .statusText = trouble, .body = {}, .cancelled = false};
    return request(*m_client);
}

QString OnDemandHttpClient::load() {
    if (m_client)
        return {};
    QLibrary module(sAppPath(m_programFolder) + networkModuleName);
    const auto make = reinterpret_cast<MakeHttpClient>(module.resolve(networkModuleEntry));
    if (!make)
        return module.errorString();
    m_client.reset(make(cancelled, guardInput));
    return {};
}

} // namespace tolvo
