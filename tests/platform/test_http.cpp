// SPDX-License-Identifier: MIT
#include "platform/network/NetworkHttpClient.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

/// A server that answers each request as told, and keeps the requests.
class Server {
  public:
    explicit Server(std::function<void(QTcpSocket &)> answer) : m_answer(std::move(answer)) {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                request += socket->readAll();
                if (!request.contains("\r\n\r\n") || request.endsWith(": 4\r\n\r\n"))
                    return; // more to come
                m_answer(*socket);
            });
        });
    }
    [[nodiscard]] QByteArray url(const QByteArray &path = "/") const {
        return "http://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + path;
    }
    QByteArray request;

  private:
    std::function<void(QTcpSocket &)> m_answer;
    QTcpServer m_server;
};

void say(QTcpSocket &socket, const QByteArray &answer) {
    socket.write(answer);
    socket.disconnectFromHost();
}

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
        Server server([&](QTcpSocket &socket) { say(socket, std::get<0>(row)); });
        const HttpReply reply = NetworkHttpClient().get(server.url("/a%20b?q=%C3%A9%26%2C1%2B1~"));
        EXPECT_EQ(std::tuple(std::get<0>(row), reply.status, reply.statusText, reply.body), row);
        EXPECT_TRUE(server.request.startsWith("GET /a%20b?q=%C3%A9%26%2C1%2B1~ HTTP/1.1\r\n"))
            << server.request.data();
    }
}

TEST(Http, PostsABody) {
    Server server([](QTcpSocket &socket) { say(socket, "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"); });
    NetworkHttpClient client;
    EXPECT_EQ(client.post(server.url(), "k=v&", "application/x-www-form-urlencoded").status, 200);
    EXPECT_TRUE(server.request.startsWith("POST / "));
    EXPECT_TRUE(server.request.endsWith("k=v&"));
}

TEST(Http, WhatIsNoAnswerHasStatusZeroAndSaysWhy) {
    QByteArray refusing;
    {
        Server gone([](QTcpSocket &) {});
        refusing = gone.url();
    }
    Server silent([](QTcpSocket &) {});
    Server endless(sayForEver);
    Server broken([](QTcpSocket &s) { say(s, "HTTP/1.1 200 OK\r\nContent-Length: 50\r\n\r\nhalf"); });
    Server slow([](QTcpSocket &s) { s.write("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhal"); });
    for (const QByteArray &url : {refusing, silent.url(), endless.url(), broken.url(), slow.url(),
                                  QByteArray("nonsense"), QByteArray()}) {
        NetworkHttpClient client({.milliseconds = 400, .bodyBytes = 1'000'000});
        const HttpReply reply = client.get(url);
        EXPECT_EQ(reply.status, 0) << url.data();
        EXPECT_FALSE(reply.statusText.isEmpty()) << url.data();
        EXPECT_TRUE(reply.body.isEmpty()) << url.data();
    }
}

TEST(Http, TheBodyMayBeAsLargeAsTheLimit) {
    for (const int excess : {0, 1}) {
        Server server([&](QTcpSocket &socket) {
            say(socket, "HTTP/1.1 200 OK\r\n\r\n" + QByteArray(3'000'000 + excess, 'x'));
        });
        NetworkHttpClient client({.milliseconds = 20'000, .bodyBytes = 3'000'000});
        EXPECT_EQ(client.get(server.url()).status, excess == 0 ? 200 : 0);
    }
}

TEST(Http, CanBeCancelledAndGuardsTheInputMeanwhile) {
    Server silent([](QTcpSocket &) {});
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
    EXPECT_EQ(asked, 3);
    EXPECT_EQ(guards, 0);
}

} // namespace
} // namespace tolvo
