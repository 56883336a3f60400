// SPDX-License-Identifier: MIT
// tolvo-pipe as the shell runs it, and beside a session with the same Actions.
#include "powerbuttons/CPowerButtonMethods.h"
#include "tests/support/User.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

using namespace tolvo;
using namespace tolvo::test;

namespace {

class Pipe : public ::testing::Test {
  protected:
    struct Result {
        int code;
        QByteArray out;
        QString err;
    };

    Result run(const QStringList &arguments, const QByteArray &input = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TOLVO_SETTINGS", storePath);
        process.setProcessEnvironment(environment);
        process.start(qEnvironmentVariable("TOLVO_BIN") + "/tolvo-pipe", arguments);
        process.write(input);
        process.closeWriteChannel();
        EXPECT_TRUE(process.waitForFinished(60000));
        return {process.exitCode(), process.readAllStandardOutput(),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir folder;
    QString storePath = folder.filePath("settings.sqlite");
};

TEST_F(Pipe, runsStepsOnText) {
    const struct {
        QStringList arguments;
        QByteArray in, out;
        int code;
    } cases[] = {{{"ccUPP", "foTRA"}, "a \nb\n", "A\nB\n", 0},
                 {{"soREV"}, "a\r\nb", "b\r\na", 0},
                 {{"--raw", "soREV"}, "a\nb", "a\nb", 1}, // one line for the tool
                 {{"--select", "1,1", "ccUPP"}, "abc", "aBc", 0},
                 {{"--select=3,9", "ccUPP"}, "a\nb\nc", "a\nB\nC", 0},
                 {{"foIND:Spaces=4, Text=> , RadioButton=2"}, "a\nb", "> a\n> b", 0},
                 {{"foIND:RadioButton=x", "ccUPP"}, "a", "A", 1},
                 {{"ccLOW"},
                  "\xEF\xBB\xBF"
                  "A\xF0\x9F\x98\x80",
                  "\xEF\xBB\xBF"
                  "a\xF0\x9F\x98\x80",
                  0},
                 {{"ccLOW"}, "", "", 0},
                 {{"ccLOW"}, "A\xED\xA0\x80", "", 2},
                 {{"chSPE"}, "a", "", 2},
                 {{"edSRC"}, "a", "", 2},
                 {{"foTRA:x"}, "a", "", 2},
                 {{"nothing"}, "a", "", 2},
                 {{}, "a", "", 2},
                 {{"--nothing", "ccUPP"}, "a", "", 2},
                 {{"--select", "1", "ccUPP"}, "a", "", 2}};
    for (const auto &row : cases) {
        SCOPED_TRACE(row.arguments.join(u' ').toStdString());
        const Result result = run(row.arguments, row.in);
        EXPECT_EQ(result.out, row.out);
        EXPECT_EQ(result.code, row.code) << result.err.toStdString();
        EXPECT_TRUE(row.code == 0 || result.err.startsWith("tolvo-pipe: "));
    }
}

TEST_F(Pipe, hasNoTextLimit) {
    // Large texts pass in pieces, whose edges fall on every byte of these characters.
    const QByteArray text = QByteArray("a\u00E9\u20AC\U0001F600\n").repeated(100000);
    const Result result = run({"ccUPP"}, text);
    EXPECT_EQ(result.out, QByteArray("A\u00C9\u20AC\U0001F600\n").repeated(100000));
    EXPECT_EQ(result.err, "tolvo-pipe: 700000 characters: upper case\n");
    for (const char *end : {"\xff", "\xe2\x82"})
        EXPECT_TRUE(run({"ccUPP"}, text + end).err.contains("byte 1100000")) << end;
}

TEST_F(Pipe, saysWhatItCanDo) {
    EXPECT_EQ(run({"--version"}).out, "tolvo-pipe " + applicationVersion().toUtf8() + '\n');
    EXPECT_TRUE(run({"--help"}).out.startsWith("Usage: tolvo-pipe"));
    EXPECT_TRUE(run({"--list-tools"}).out.contains("\nccLOW\tlower case\t"));
    EXPECT_TRUE(run({"ccLOW"}, "a\xff").err.contains("byte 1"));
    const auto reply = QJsonDocument::fromJson(run({"--json", "chSTAT", "soKEY"}, "a\nb").out).object();
    EXPECT_EQ(reply.value("text").toString(), "a\r\nb");
    EXPECT_EQ(reply.value("statistics").toArray().size(), 8);
    EXPECT_EQ(reply.value("messages").toArray().size(), 1);
}

TEST_F(Pipe, completesAStep) {
    {
        SettingsStore store(storePath);
        NamedBoxes boxes;
        CPowerButton button;
        button.Name = "Shout";
        button.Add(User::action("ccUPP"));
        CPowerButtonMethods(store, realCatalogue(), boxes).SavePBSettings(button, 4);
    }
    const std::pair<QString, QByteArray> rows[] = {
        {"ccUP", "ccUPP\tUPPER CASE\n"},
        {"foWR", "foWRP\tWord wrap...\nfoWRP:\tWord wrap... with settings\n"},
        {"foWRP:", "foWRP:Width=50\tWidth\nfoWRP:Justify=0\tJustify\nfoWRP:Hanging=0\tHanging\n"
                   "foWRP:Tab=True\tTab\n"},
        {"foWRP:Width=60, Tab=True, H", "foWRP:Width=60, Tab=True, Hanging=0\tHanging\n"},
        {"pbPBT:", "pbPBT:PowerButton=1\tPowerButton\n"},
        {"pbPBT:PowerButton=", "pbPBT:PowerButton=4\tShout\n"},
        {"ccUPP:", ""},
        {"xx:", ""},
    };
    for (const auto &[begun, offered] : rows)
        EXPECT_EQ(run({"--complete", begun}).out, offered) << begun.toStdString();
    EXPECT_EQ(run({"--list-buttons"}).out, "4\tShout\n");
}

TEST_F(Pipe, refusesAPowerButtonThatNeedsAWindow) {
    {
        SettingsStore store(storePath);
        NamedBoxes boxes;
        CPowerButton button;
        button.Add(User::action("chGRA", SettingsFrom::Current));
        CPowerButtonMethods(store, realCatalogue(), boxes).SavePBSettings(button, 4);
    }
    const Result result = run({"ccUPP", "pbPBT:PowerButton=4"}, "a");
    EXPECT_EQ(result.code, 2);
    EXPECT_TRUE(result.err.contains("chGRA")) << result.err.toStdString();
}

TEST_F(Pipe, batchAnswersEachLineAndGoesOn) {
    const Result result = run({"--batch"}, "{\"text\":\"a\\ud800\",\"steps\":[\"ccUPP\"]}\nnonsense\n\n"
                                           "{\"steps\":[]}\n{\"text\":\"b\",\"steps\":[]}");
    EXPECT_EQ(result.code, 0);
    const QList<QByteArray> lines = result.out.split('\n');
    ASSERT_EQ(lines.size(), 5);
    EXPECT_TRUE(lines.at(0).startsWith("{\"text\":\"A\\ud800\",\"selStart\":0,\"selLength\":0,\"status\":"));
    EXPECT_TRUE(lines.at(1).startsWith("{\"error\":"));
    EXPECT_TRUE(lines.at(2).startsWith("{\"error\":"));
    EXPECT_TRUE(lines.at(3).startsWith("{\"text\":\"b\""));
}

TEST_F(Pipe, tellsWhatASearchFoundOrWhyItCouldNot) {
    const struct {
        const char *steps;
        const char *searches;
        const char *text;
        const char *clipboard;
    } cases[] = {
        {"\"ccUPP\",\"edSRC:Mode=1, Find=a, Direction=S\"", R"([{"matches":2,"step":1}])", "A B A", ""},
        {"\"edREP:Mode=3, Find=^, Replace=> , ReplaceAll=1\"", R"([{"matches":1,"step":0}])", "> a b a", ""},
        {"\"edREP:Mode=3, Find=b(, Replace=x, ReplaceAll=1\"",
         R"([{"error":"a group is not closed","errorAt":1,"matches":0,"step":0}])", "a b a", ""},
        {"\"edCPM:Mode=2, Find=?, Form=<$1>, InPlace=0\"", R"([{"matches":5,"step":0}])", "a b a",
         "<a>\r\n< >\r\n<b>\r\n< >\r\n<a>"},
        {"\"edCPM:Mode=1, Find=a, InPlace=1\"", R"([{"matches":2,"step":0}])", "a\r\na", ""},
        {"\"edCPM:Mode=1, Find=q, InPlace=1\"", R"([{"matches":0,"step":0}])", "a b a", ""},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.steps);
        const QByteArray request = QByteArray(R"({"text":"a b a","steps":[)") + row.steps + "]}\n";
        const QJsonObject reply = QJsonDocument::fromJson(run({"--batch"}, request).out).object();
        EXPECT_EQ(QJsonDocument(reply["searches"].toArray()).toJson(QJsonDocument::Compact), row.searches);
        EXPECT_EQ(reply["text"].toString(), row.text);
        EXPECT_EQ(reply["clipboard"].toString(), row.clipboard);
    }
}

TEST_F(Pipe, batchSaysWhatIsCutOfRequestAndResult) {
    const struct {
        int length;
        const char *steps;
        QStringList says;
    } cases[] = {{65535, "", {}},
                 {65535, "\"foIND:RadioButton=1, Spaces=1\"", {"It had 65,536 characters."}},
                 {65536, "\"ccUPP\"", {"There are 65,536 characters."}}};
    for (const auto &row : cases) {
        const QByteArray request =
            "{\"text\":\"" + QByteArray(row.length, 'x') + "\",\"steps\":[" + row.steps + "]}";
        const QJsonObject reply = QJsonDocument::fromJson(run({"--batch"}, request).out).object();
        EXPECT_EQ(reply.value("text").toString().size(), 65535);
        const QJsonArray messages = reply.value("messages").toArray();
        ASSERT_EQ(messages.size(), row.says.size());
        for (qsizetype i = 0; i < messages.size(); ++i)
            EXPECT_TRUE(messages.at(i).toObject().value("text").toString().contains(row.says.at(i)));
    }
}

/// What a session with a PowerButton of the same Actions comes to, in the words of a reply.
QJsonObject replyOfSession(const QString &picture, const QStringList &steps) {
    User user;
    user.startsWith(picture);
    QList<std::shared_ptr<CAction>> actions;
    for (const QString &step : steps) {
        const QString token = step.section(u':', 0, 0);
        actions += User::action(token, step.contains(u':') ? SettingsFrom::Custom : SettingsFrom::Current,
                                step.section(u':', 1));
    }
    user.defines(1, actions);
    user.session.imgPower_Click(0);
    QJsonArray texts;
    for (const Box &box : user.boxes.take())
        texts += box.text;
    return {{"text", user.session.txtCurrent().Text()},
            {"selStart", user.session.txtCurrent().SelStart()},
            {"selLength", user.session.txtCurrent().SelLength()},
            {"status", user.session.labStatus()},
            {"dirty", user.session.bDirty()},
            {"messages", texts}};
}

TEST_F(Pipe, batchAndSessionComeToTheSame) {
    const struct {
        QString picture;
        QStringList steps;
    } cases[] = {
        {"THE «old» man", {"ccUPP", "pbCUT", "pbPST"}},
        {"b|a", {"soALP", "foIND"}},
        {"b|«a»", {"foWRP:Width=12, Justify=0, Hanging=0, Tab=True", "soREV"}},
        {"one two", {"edREP:Mode=3, Find=o, Replace=0, ReplaceAll=1", "edSRC:Mode=1, Find=zzz, Direction=D"}},
        {"a", {"liBUL:Bullet=*, Tab=maybe, Spaces=2", "ccUPP"}},
        {"a «b c»", {"liNUM", "liREN:Start=1", "chPNC", "foCOL:"}},
        {"x", {"pbPBT:PowerButton=9", "pbTAG", "soKEY"}}};
    QByteArray requests;
    for (const auto &row : cases) {
        const TextState state = stateOf(row.picture);
        requests += QJsonDocument(QJsonObject{{"text", state.text},
                                              {"selStart", state.selStart},
                                              {"selLength", state.selLength},
                                              {"clipboard", state.text},
                                              {"steps", QJsonArray::fromStringList(row.steps)}})
                        .toJson(QJsonDocument::Compact) +
                    '\n';
    }
    const QList<QByteArray> lines = run({"--batch"}, requests).out.split('\n');
    ASSERT_EQ(lines.size(), std::ssize(cases) + 1);
    for (qsizetype i = 0; i < std::ssize(cases); ++i) {
        SCOPED_TRACE(cases[i].steps.join(u' ').toStdString());
        QJsonObject reply = QJsonDocument::fromJson(lines.at(i)).object();
        QJsonArray texts;
        for (const QJsonValue message : reply.value("messages").toArray())
            texts += message.toObject().value("text");
        reply.insert("messages", texts);
        reply.remove("clipboard");
        reply.remove("searches");
        EXPECT_EQ(QJsonDocument(reply).toJson(),
                  QJsonDocument(replyOfSession(cases[i].picture, cases[i].steps)).toJson());
    }
}

} // namespace
