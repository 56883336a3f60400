// SPDX-License-Identifier: MIT
#include "spelling_world.h"

#include "platform/network/NetworkHttpClient.h"
#include "spelling/after_the_deadline.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace tolvo::test {

/// A service on this machine that answers every request with the same bytes.
class LoopbackServer {
  public:
    LoopbackServer() {
        m_server.listen(QHostAddress::LocalHost);
        QObject::connect(&m_server, &QTcpServer::newConnection, [this] {
            QTcpSocket *socket = m_server.nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, [this, socket] { read(*socket); });
        });
    }
    [[nodiscard]] QString url() const { return u("http://127.0.0.1:%1").arg(m_server.serverPort()); }
    void close() { m_server.close(); }

    QByteArray requestLine;
    QByteArray answer;
    bool endless = false; ///< the body never ends

  private:
    void read(QTcpSocket &socket) {
        m_received += socket.readAll();
        if (!m_received.contains("\r\n\r\n"))
            return;
        requestLine = m_received.left(m_received.indexOf("\r\n"));
        m_received.clear();
        socket.write(answer);
        if (!answer.isEmpty() && !endless)
            socket.disconnectFromHost();
        if (endless)
            QObject::connect(&socket, &QTcpSocket::bytesWritten, [&socket] { pour(socket); });
    }
    static void pour(QTcpSocket &socket) {
        if (socket.bytesToWrite() == 0)
            socket.write(QByteArray(65536, 'x'));
    }

    QTcpServer m_server;
    QByteArray m_received;
};

QByteArray http(const QByteArray &body, const QByteArray &status = "200 OK") {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" +
           body;
}

/// An error of a reply: string, type, precontext, options.
QByteArray error(const char *phrase, const char *type, const char *context = "",
                 const QList<const char *> &options = {}) {
    QByteArray xml = QByteArray("<error><string>") + phrase + "</string><type>" + type +
                     "</type><description>why</description><precontext>" + context + "</precontext>";
    if (!options.isEmpty()) {
        xml += "<suggestions>";
        for (const char *option : options)
            xml += QByteArray("<option>") + option + "</option>";
        xml += "</suggestions>";
    }
    return xml + "</error>";
}

class AfterTheDeadline_ : public SpellingWorld {
  public:
    AfterTheDeadline_() { setProvider(2); }

    /// What a check finds, or "(failure n)" or "(none)" if it doesn't get that far.
    QStringList check(const QString &text) {
        int LangID = -1;
        QString locale;
        CSpelling spelling(services, oTextMethods);
        spelling.init(2, LangID, locale);
        try {
            if (!spelling.Spell(text))
                return {u("(none)")};
        } catch (const Failure &failure) {
            return {u("(failure %1 %2)").arg(failure.number()).arg(failure.description())};
        }
        return told(spelling.SpellingErrors());
    }
    QStringList checkReply(const char *text, const QByteArray &errors) {
        services.atdEndpoint = u("http://service");
        http.reply = {200, u("OK"), "<?xml version=\"1.0\"?>\n<results>\n" + errors + "</results>"};
        return check(u(text));
    }
};

TEST_F(AfterTheDeadline_, TakesWhatTheLocalDictionaryConfirms) {
    struct Case {
        const char *text;
        QByteArray reply;
        QStringList errors;
    };
    const Case cases[] = {
        {"the fox", {}, {u("(none)")}},
        {"zqx the xzj", {}, {u("zqx 0-3 1"), u("xzj 8-11 1")}}, // no errors: checked locally
        {"a teh", error("teh", "spelling", "a", {"the", "tex", "then"}), {u("teh 2-5 1 the,then")}},
        {"a fox", error("fox", "spelling", "a", {"dog"}), {u("(none)")}}, // the dictionary knows it
        {"a fox", error("fox", "capitalisation", "a", {"Fox", "Foxx"}), {u("fox 2-5 2 Fox")}},
        {"a fox", error("fox", "grammar", "a", {"(omit)", "the dog"}), {u("fox 2-5 3 <Omit>,the dog")}},
        {"a fox", error("fox", "suggestion", "a"), {u("fox 2-5 4")}},
        {"a fox", error("fox", "Grammar", "a"), {u("fox 2-5 -1")}},
        {"a zqx", error("zqx", "spelling", "a", {"(omit)"}), {u("zqx 2-5 1")}}, // no word of the dictionary
        {"the fox is", error("fox", "grammar", "the", {"dog", "dog"}), {u("fox 4-7 3 dog")}},
        // Found in the text as it is, not as the service saw it.
        {"hello ,the\rfox", error("fox", "grammar", "the", {"dog"}), {u("fox 11-14 3 dog")}},
        // The same place twice: the second error has none.
        {"a fox",
         error("fox", "grammar", "a", {"dog"}) + error("fox", "suggestion", "a", {"dog"}),
         {u("fox 2-5 3 dog")}},
        // Another context: passed over without a word.
        {"a fox the fox", error("fox", "grammar", "the"), {u("(none)")}},
        // Once suggestions have been read, what is missing is taken from the error before.
        {"a fox the dog",
         error("fox", "grammar", "a", {"dog"}) +
             "<error><string>dog</string><precontext>the</precontext></error>",
         {u("fox 2-5 3 dog"), u("dog 10-13 3")}},
        // An error without suggestions.
        {"a fox",
         "<error><string>fox</string><type>grammar</type><description/><precontext>a</precontext></error>",
         {u("fox 2-5 3")}},
    };
    for (const Case &one : cases) {
        EXPECT_EQ(checkReply(one.text, one.reply), one.errors) << one.text << one.reply.constData();
        EXPECT_EQ(said(), QStringList());
    }
}

TEST_F(AfterTheDeadline_, AddsLocalErrorsBetweenThoseOfTheService) {
    struct Case {
        const char *text;
        QByteArray reply;
        QStringList errors;
    };
    const Case cases[] = {
        {"zqx the fox xzj", error("fox", "grammar", "the"), {u("zqx 0-3 1"), u("fox 8-11 3")}},
        {"zqx a teh", error("teh", "spelling", "a"), {u("zqx 0-3 1"), u("teh 6-9 1")}},
        {"the fox xzj a dog",
         error("fox", "grammar", "the") + error("dog", "grammar", "a"),
         {u("fox 4-7 3"), u("xzj 8-11 1"), u("dog 14-17 3")}},
        // A local misspelling that occurs twice stays at its later place alone.
        {"zqx xzj zqx a fox",
         error("fox", "grammar", "a"),
         {u("xzj 4-7 1"), u("fox 14-17 3"), u("zqx 8-11 1")}},
    };
    for (const Case &one : cases)
        EXPECT_EQ(checkReply(one.text, one.reply), one.errors) << one.text;
}

TEST_F(AfterTheDeadline_, SaysWhatIsWrongWithAReply) {
    struct Case {
        const char *text;
        QByteArray reply;
        QStringList errors, boxes;
    };
    const Case cases[] = {
        {"a zqx",
         "<message>Too long</message>" + error("zqx", "spelling", "a"),
         {u("zqx 2-5 1")},
         {u("5005 Too long (CSpelling::Spell)")}},
        {"a fox",
         "<odd/>" + error("fox", "grammar", "a"),
         {u("fox 2-5 3")},
         {u("5006 Unexpected node result 'odd (CSpelling::Spell)")}},
        {"a fox",
         error("cat", "grammar", "a") + error("fox", "grammar", "a"),
         {u("fox 2-5 3")},
         {u("5007 Text 'cat' cannot be found (CSpelling::findThePlace)")}},
        {"a fox",
         "<error><string>fox</string></error>",
         {u("(failure 91 The reply of After the Deadline holds an error without 'type')")},
         {}},
        {"zqx a fox",
         error("fox", "grammar", "a") + error("f(ox", "grammar", "a"),
         {u("zqx 0-3 1"), u("fox 6-9 3")},
         {}}, // an invalid pattern behind the first suggestions
    };
    for (const Case &one : cases) {
        EXPECT_EQ(checkReply(one.text, one.reply), one.errors) << one.reply.constData();
        EXPECT_EQ(said(), one.boxes) << one.reply.constData();
    }
    EXPECT_TRUE(checkReply("a fox", error("f(ox", "grammar", "a")).first().startsWith(u("(failure 5018 ")));
}

TEST_F(AfterTheDeadline_, ChecksLocallyWhenAReplyIsNoUsableXml) {
    services.atdEndpoint = u("http://service");
    const QByteArray bomb =
        "<!DOCTYPE r [<!ENTITY a \"xxxxxxxxxx\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;\">]>"
        "<r><message>&b;</message></r>";
    for (const QByteArray &body :
         {QByteArray(), QByteArray("<results><error>"), QByteArray("no XML"), bomb, QByteArray(3000, '<')}) {
        http.reply = {200, u("OK"), body};
        EXPECT_EQ(check(u("a zqx")), QStringList(u("zqx 2-5 1"))) << body.left(40).constData();
        EXPECT_EQ(said(), QStringList());
    }
}

TEST_F(AfterTheDeadline_, IsNotAskedWithoutAnEndpoint) {
    EXPECT_EQ(check(u("a zqx")), QStringList(u("(none)")));
    EXPECT_EQ(said(), QStringList(u("5007 After the Deadline did not respond. Please try again later' "
                                    "(CSpelling::Spell)")));
    EXPECT_EQ(http.urls.size(), 0);
}

class OverTheNetwork : public AfterTheDeadline_ {
  public:
    OverTheNetwork() {
        m_services.atdEndpoint = server.url() + u("/");
        m_services.programFolder = services.programFolder;
    }
    QStringList ask(const QString &text) {
        AfterTheDeadline provider(m_services, oTextMethods, local());
        const auto errors = provider.check(text);
        return errors ? told(*errors) : QStringList{u("(none)")};
    }

    LoopbackServer server;
    NetworkHttpClient client{{.milliseconds = 400, .bodyBytes = 1 << 20}};

  private:
    LocalDictionary &local() {
        m_local.initHunspell(m_services, u("en-gb"));
        return m_local;
    }
    SpellingServices m_services{store, boxes, client, word, {}, {}, {}};
    LocalDictionary m_local;
};

TEST_F(OverTheNetwork, SendsTheRepairedTextPercentEncoded) {
    server.answer = tolvo::test::http("<results/>");
    QSet<QByteArray> keys;
    for (int request = 0; request < 2; ++request) {
        EXPECT_EQ(ask(u("fox ,a &\r1+1=2\t100% caf\u00e9~")), QStringList(u("caf\u00e9 20-24 1")));
        const auto match =
            QRegularExpression(
                u("^GET /checkDocument\\?key=QVKXN([0-9A-F]{32})&data=fox%2C%20a%20%26%201%2B1%3D2"
                  "%20100%25%20caf%C3%A9~ HTTP/1\\.1$"))
                .match(QString::fromLatin1(server.requestLine));
        EXPECT_TRUE(match.hasMatch()) << server.requestLine.constData();
        keys.insert(match.captured(1).toLatin1());
    }
    EXPECT_EQ(keys.size(), 2);
}

TEST_F(OverTheNetwork, FailsInWords) {
    const QStringList silent{u("5007 After the Deadline did not respond. Please try again later' "
                               "(CSpelling::Spell)")};
    server.answer = tolvo::test::http("oops", "500 Out of order");
    try {
        (void)ask(u("a teh"));
        FAIL() << "a status of 500 was taken";
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), 5012);
        EXPECT_EQ(failure.source(), u("CSpelling::getAtD"));
        EXPECT_EQ(failure.description(), u("Out of order"));
    }
    server.answer.clear(); // never answers
    EXPECT_EQ(ask(u("a teh")), QStringList(u("(none)")));
    EXPECT_EQ(said(), silent);
    server.answer = "HTTP/1.1 200 OK\r\n\r\n<results>"; // never ends
    server.endless = true;
    EXPECT_EQ(ask(u("a teh")), QStringList(u("(none)")));
    EXPECT_EQ(said(), silent);
    server.close();
    EXPECT_EQ(ask(u("a teh")), QStringList(u("(none)")));
    EXPECT_EQ(said(), silent);
}

} // namespace tolvo::test

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
