// SPDX-License-Identifier: MIT
// Refresher.exe against a server on this machine: one that says yes, no, nothing, nonsense, or isn't there.
#include "base/application.h"
#include "companions/refresh.h"
#include "platform/network/NetworkHttpClient.h"
#include "preferences/settings_store.h"
#include "tests/support/http_server.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

using test::httpReply;
using test::HttpServer;

const QString stats = u"Tolvo-Stats"_s;
const QString before = u"2026-01-02 03:04:05"_s;

void fill(SettingsStore &store) {
    store.SaveSetting(stats, u"Usage"_s, u"StartDate"_s, before);
    store.SaveSetting(stats, u"Usage"_s, u"Count"_s, u"7"_s);
    store.SaveSetting(stats, u"Usage"_s, u"foTRA"_s, u"3"_s);
    store.SaveSetting(stats, u"TotUsage"_s, u"foTRA"_s, u"30"_s);
}

TEST(Refresh, CountersAreResetOnlyAfterAYes) {
    const struct {
        QByteArray answer;
        bool yes = false;
        bool down = false;
    } cases[] = {{httpReply("200 OK"), true},       {httpReply("204 No Content"), true},
                 {httpReply("302 Found")},          {httpReply("503 Service Unavailable")},
                 {"SSH-2.0-nonsense\r\n"},          {{}},
                 {httpReply("200 OK"), false, true}};
    for (const auto &[answer, yes, down] : cases) {
        SCOPED_TRACE(answer.toStdString());
        SettingsStore store(u":memory:"_s);
        fill(store);
        HttpServer server(answer);
        const QByteArray address = server.url("/t");
        if (down)
            server.close();
        NetworkHttpClient client({.milliseconds = 400});
        const RefreshOutcome outcome = refresh({.stats = true}, address, store, client, Clock());
        EXPECT_EQ(outcome.done, yes);
        EXPECT_EQ(outcome.messages.size(), 1);
        EXPECT_EQ(store.GetSetting(stats, u"Usage"_s, u"StartDate"_s) != before, yes);
        EXPECT_EQ(store.GetSetting(stats, u"Usage"_s, u"foTRA"_s, 0), yes ? u"0"_s : u"3"_s);
        EXPECT_EQ(store.GetSetting(stats, u"TotUsage"_s, u"foTRA"_s, 0), u"30"_s);
    }
}

TEST(Refresh, SaysWhatItFoundAboutUpdates) {
    const struct {
        QByteArray answer;
        const char *says;
        bool done;
        const char *download;
    } cases[] = {
        {httpReply("200 OK", R"({"version": "99.1", "url": "https://example.org/get"})"), "Version 99.1",
         true, "https://example.org/get"},
        {httpReply("200 OK", R"({"version": "99.1", "url": "file:///bin/sh"})"), "Version 99.1", true, ""},
        {httpReply("200 OK", "{\"version\": \"" + applicationVersion().toUtf8() + "\"}"), "up to date", true,
         ""},
        {httpReply("200 OK", R"({"version": "0.1"})"), "up to date", true, ""},
        {httpReply("200 OK", "<html>99.1</html>"), "makes no sense", false, ""},
        {httpReply("404 Not Found"), "404", false, ""}};
    for (const auto &[answer, says, done, download] : cases) {
        SCOPED_TRACE(says);
        SettingsStore store(u":memory:"_s);
        HttpServer server(answer);
        NetworkHttpClient client;
        const RefreshOutcome outcome = refresh({.update = true}, server.url("/t"), store, client, Clock());
        EXPECT_EQ(outcome.done, done);
        EXPECT_TRUE(outcome.messages.join(u' ').contains(QString::fromLatin1(says)))
            << outcome.messages.join(u' ').toStdString();
        EXPECT_EQ(outcome.download, QString::fromLatin1(download));
        ASSERT_EQ(server.requests.size(), 1);
        EXPECT_TRUE(server.requests[0].startsWith("GET /t?version=" + applicationVersion().toUtf8()));
    }
    SettingsStore store(u":memory:"_s);
    NetworkHttpClient client;
    EXPECT_FALSE(refresh({.update = true}, "no address", store, client, Clock()).done);
}

struct RefresherProgram : testing::Test {
    QTemporaryDir folder;
    QString settings = folder.filePath(u"settings.sqlite"_s);

    void SetUp() override {
        SettingsStore store(settings);
        fill(store);
    }

    /// Runs the program; the server in this process answers meanwhile. Its exit code, and all it wrote.
    std::pair<int, QByteArray> run(const QStringList &switches, const QByteArray &address) const {
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TOLVO_SETTINGS"_s, settings);
        environment.insert(u"TOLVO_UPDATE_URL"_s, QString::fromUtf8(address));
        program.setProcessEnvironment(environment);
        program.setProcessChannelMode(QProcess::MergedChannels);
        QEventLoop loop;
        QObject::connect(&program, &QProcess::finished, &loop, &QEventLoop::quit);
        QObject::connect(&program, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
        program.start(qEnvironmentVariable("TOLVO_BIN") + u"/Refresher.exe"_s, switches);
        loop.exec();
        return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1, program.readAll()};
    }
};

TEST_F(RefresherProgram, SendsTheCountersAndBeginsAPeriod) {
    HttpServer server(httpReply("200 OK", R"({"version": "0.1"})"));
    const auto [code, output] = run({u"/update"_s, u"/stats"_s, u"/quiet"_s}, server.url("/t"));
    EXPECT_EQ(code, 0);
    EXPECT_EQ(output, QByteArray()) << "quiet is quiet";
    ASSERT_EQ(server.requests.size(), 2);
    EXPECT_TRUE(server.requests[0].startsWith("GET "));
    EXPECT_TRUE(server.requests[1].startsWith("POST /t "));
    const QByteArray &post = server.requests[1];
    const QJsonObject sent = QJsonDocument::fromJson(post.sliced(post.indexOf("\r\n\r\n") + 4)).object();
    EXPECT_EQ(sent.value(u"since"_s).toString(), before);
    EXPECT_EQ(sent.value(u"starts"_s).toInt(), 7);
    EXPECT_EQ(sent.value(u"tools"_s).toObject().value(u"foTRA"_s).toInt(), 3);
    const SettingsStore store(settings);
    EXPECT_EQ(store.GetSetting(stats, u"Usage"_s, u"foTRA"_s, 0), u"0"_s);
}

TEST_F(RefresherProgram, TwoAtOnceSendTheCountersOnce) {
    const QStringList switches{u"/stats"_s, u"/quiet"_s};
    QByteArray address;
    int codeOfSecond = -1;
    HttpServer server([&](QTcpSocket &socket) {
        if (codeOfSecond < 0)
            codeOfSecond = run(switches, address).first; // while the first waits for the answer
        socket.write(httpReply("200 OK"));
        socket.disconnectFromHost();
    });
    address = server.url("/t");
    EXPECT_EQ(run(switches, address).first, 0);
    EXPECT_EQ(codeOfSecond, 0);
    EXPECT_EQ(server.requests.size(), 1);
}

TEST_F(RefresherProgram, ChangesNothingWithoutAnAddress) {
    EXPECT_EQ(run({u"/update"_s, u"/stats"_s}, {}).first, 0);
    EXPECT_EQ(run({u"/nonsense"_s}, {}).first, 2);
    EXPECT_EQ(run({u"/stats"_s, u"/quiet"_s}, "nowhere"), (std::pair{1, QByteArray()})) << "quiet in failure";
    EXPECT_EQ(SettingsStore(settings).GetSetting(stats, u"Usage"_s, u"StartDate"_s), before);
}

} // namespace
} // namespace tolvo
