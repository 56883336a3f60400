// SPDX-License-Identifier: MIT
#include "platform/network/NetworkHttpClient.h"
#include "platform/network/OnDemandHttpClient.h"
#include "tests/support/http_server.h"

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

using test::httpReply;
using test::HttpServer;

/// Sends ever more, as fast as it is taken.
void sayForEver(QTcpSocket &socket) {
    socket.write("HTTP/1.1 200 OK\r\n\r\n");
    const auto more = [&socket] { socket.write(QByteArray(100'000, 'x')); };
    QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, more);
    more();
}

TEST(Http, BringsStatusReasonAndBody) {
    const std::tuple<QByteArray, int, QString, QByteArray> rows[] = {
        {"HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello", 200, u"OK"_s, "hello"},
        {"HTTP/1.1 200 Fine\r\n\r\n", 200, u"Fine"_s, ""},
        {"HTTP/1.1 500 Broken\r\nContent-Length: 2\r\n\r\nno", 500, u"Broken"_s, "no"},
        {"HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:1/\r\nContent-Length: 0\r\n\r\n", 302, u"Found"_s,
         ""},
    };
    for (const auto &row : rows) {
        HttpServer server(std::get<0>(row));
        const HttpReply reply = NetworkHttpClient().get(server.url("/a%20b?q=%C3%A9%26%2C1%2B1~"));
        EXPECT_EQ(std::tuple(std::get<0>(row), reply.status, reply.statusText, reply.body), row);
        EXPECT_TRUE(server.requests.value(0).startsWith("GET /a%20b?q=%C3%A9%26%2C1%2B1~ HTTP/1.1\r\n"))
            << server.requests.value(0).data();
        EXPECT_FALSE(server.requests.value(0).toLower().contains("tolvo")) << server.requests.value(0).data();
    }
}

TEST(Http, IsLoadedOnDemand) {
    HttpServer server(httpReply("200 OK"));
    OnDemandHttpClient client(qEnvironmentVariable("TOLVO_BIN"));
    const HttpReply reply = client.post(server.url(), "k=v", "text/plain");
    EXPECT_EQ(reply.status, 200) << reply.statusText.toStdString();
    EXPECT_EQ(client.get(server.url()).status, 200);
    EXPECT_EQ(server.requests.size(), 2);
    const HttpReply none = OnDemandHttpClient(u"/nowhere"_s).get(server.url());
    EXPECT_EQ(none.status, 0);
    EXPECT_TRUE(none.statusText.contains("tolvo-network"));
}

TEST(Http, WhatIsNoAnswerHasStatusZeroAndSaysWhy) {
    const QByteArray refusing = HttpServer().url();
    HttpServer silent;
    HttpServer endless(sayForEver);
    HttpServer broken("HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nhalf");
    HttpServer slow([](QTcpSocket &s) { s.write("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhal"); });
    for (const QByteArray &url : {refusing, silent.url(), endless.url(), broken.url(), slow.url(),
                                  QByteArray("nonsense"), QByteArray()}) {
        NetworkHttpClient client({.milliseconds = 400, .bodyBytes = 1'000'000});
        const HttpReply reply = client.get(url);
        EXPECT_EQ(reply.status, 0) << url.data();
        EXPECT_FALSE(reply.statusText.isEmpty()) << url.data();
        EXPECT_TRUE(reply.body.isEmpty()) << url.data();
        EXPECT_FALSE(reply.cancelled) << url.data();
    }
}

TEST(Http, TheBodyMayBeAsLargeAsTheLimit) {
    for (const int excess : {0, 1}) {
        HttpServer server("HTTP/1.1 200 OK\r\n\r\n" + QByteArray(3'000'000 + excess, 'x'));
        NetworkHttpClient client({.milliseconds = 20'000, .bodyBytes = 3'000'000});
        EXPECT_EQ(client.get(server.url()).status, excess == 0 ? 200 : 0);
    }
}

TEST(Http, CanBeCancelledAndGuardsTheInputMeanwhile) {
    HttpServer silent;
    NetworkHttpClient client;
    int guards = 0;
    client.guardInput = [&] {
        ++guards;
        return std::shared_ptr<void>(&guards, [&](void *) { --guards; });
    };
    int asked = 0;
    client.cancelled = [&] {
        EXPECT_EQ(guards, 1);
        return ++asked == 3;
    };
    const HttpReply reply = client.get(silent.url());
    EXPECT_EQ(reply.status, 0);
    EXPECT_TRUE(reply.cancelled);
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(guards, 0);
}

} // namespace
} // namespace tolvo
