// SPDX-License-Identifier: MIT
#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace tolvo::test {

/// A server on this machine: keeps what it is asked, and answers as it is asked to.
class HttpServer {
  public:
    using Answer = std::function<void(QTcpSocket &)>;

    explicit HttpServer(Answer answer) : m_answer(std::move(answer)) {
        EXPECT_TRUE(m_server.listen(QHostAddress::LocalHost));
        QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
            QTcpSocket *const socket = m_server.nextPendingConnection();
            auto asked = std::make_shared<QByteArray>();
            QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket, asked] {
                *asked += socket->readAll();
                if (!isComplete(*asked))
                    return;
                requests += *asked;
                m_answer(*socket);
            });
        });
    }
    /// The same bytes for everybody; none: it never answers.
    explicit HttpServer(const QByteArray &reply = {})
        : HttpServer([reply](QTcpSocket &socket) {
              if (reply.isEmpty())
                  return;
              socket.write(reply);
              socket.disconnectFromHost();
          }) {}

    [[nodiscard]] QByteArray url(const QByteArray &path = "/") const {
        return "http://127.0.0.1:" + QByteArray::number(m_server.serverPort()) + path;
    }
    void close() { m_server.close(); }

    QByteArrayList requests;

  private:
    static bool isComplete(const QByteArray &asked) {
        const qsizetype head = asked.indexOf("\r\n\r\n");
        const qsizetype field = asked.toLower().indexOf("content-length:");
        const qsizetype length =
            field < 0 ? 0 : asked.mid(field + 15, asked.indexOf('\r', field) - field - 15).toInt();
        return head >= 0 && asked.size() >= head + 4 + length;
    }

    Answer m_answer;
    QTcpServer m_server;
};

/// A whole reply with its length.
inline QByteArray httpReply(const QByteArray &status, const QByteArray &body = {}) {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

} // namespace tolvo::test
