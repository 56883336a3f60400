// SPDX-License-Identifier: MIT
// tolvo-pipe as the shell runs it, and beside a session with the same Actions.
#include "powerbuttons/CPowerButtonMethods.h"
#include "preferences/settings_keys.h"
#include "tests/support/User.h"
#include "tests/support/examples.h"

#include <QDir>
#include <QFile>
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
                QString::fromUtf8(process.readAllStandardError()).remove(u'\r')};
    }

    /// A row of arguments, what comes in, what goes out, exit code.
    void runs(const QStringList &row) {
        const Result result = run(listOf(row[0]), listOf(row[1]).first().toUtf8());
        EXPECT_EQ(QString::fromUtf8(result.out), listOf(row[2]).first());
        EXPECT_EQ(result.code, row[3].toInt()) << result.err.toStdString();
        EXPECT_TRUE(result.code < 2 || result.err.startsWith("tolvo-pipe: "));
    }

    void definesShout() const {
        SettingsStore store(storePath);
        NamedBoxes boxes;
        CPowerButton button;
        button.Name = "Shout";
        button.Add(User::action("ccUPP"));
        CPowerButtonMethods(store, realCatalogue(), boxes).SavePBSettings(button, 4);
    }

    QTemporaryDir folder;
    QString storePath = folder.filePath("settings.sqlite");
};

TEST_F(Pipe, runsStepsOnText) {
    definesShout();
    forEachExample("/tests/pipe/examples.txt", [this](const QString &section, const QStringList &row) {
        if (section == u"Runs" || section == u"Completes")
            runs(row);
    });
    EXPECT_EQ(run({"ccLOW"}, "A\xED\xA0\x80").code, 2) << "a lone surrogate in UTF-8";
    EXPECT_EQ(run({"--list-buttons"}).out, "4\tShout\n");
}

TEST_F(Pipe, runsAButtonOfAFile) {
    const QString path = folder.filePath("x.tolvobutton");
    const QByteArray nested = "Tolvo PowerButton 1\nname: x\nstep: pbPBT\nsettings: own\nset: PowerButton=2\n"
                              "step: foTRA\nbutton: 2\nstep: ccUPP\n";
    const struct {
        QByteArray file;
        QStringList more;
        QByteArray out, err;
        int code;
    } cases[] = {{nested, {}, "A\n", {}, 0},
                 {nested, {"--select=0,0", "--json"}, "{\"text\":\"A\\r\\n\"", {}, 0},
                 {nested, {"ccUPP"}, {}, "--button-file takes the place of the steps", 2},
                 {nested, {"--batch"}, {}, "--button-file takes the place of the steps", 2},
                 {nested + "run: ls", {}, {}, "x.tolvobutton: Line 9: \"run\" is not known here", 2},
                 {"Tolvo PowerButton 1\nstep: chSPE", {}, {}, "chSPE (Spelling...) needs a window", 2}};
    for (const auto &row : cases) {
        SCOPED_TRACE(row.more.join(u' ').toStdString());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(row.file);
        file.close();
        const Result result = run(QStringList{"--button-file=" + path} + row.more, "a \n");
        EXPECT_TRUE(result.out.startsWith(row.out) && result.out.isEmpty() == row.out.isEmpty());
        EXPECT_TRUE(result.err.contains(QLatin1StringView(row.err))) << result.err.toStdString();
        EXPECT_EQ(result.code, row.code);
    }
    EXPECT_EQ(run({"--button-file", folder.filePath("none")}, "a").code, 2);
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

TEST_F(Pipe, listsMisspelledWords) {
    const auto put = [this](const char *name, const QByteArray &bytes) {
        QFile file(folder.filePath(QString("dictionaries/") + name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    };
    QDir(folder.path()).mkpath("dictionaries");
    put("xx_YY.aff", "SET UTF-8\nTRY thena\n");
    put("xx_YY.dic", "3\nthe\nthen\ncat\n");
    qputenv("DICPATH", folder.filePath("dictionaries").toUtf8());
    forEachExample("/tests/pipe/examples.txt", [this](const QString &section, const QStringList &row) {
        if (section == u"Spelling")
            runs(row);
    });
    EXPECT_EQ(run({"--spell", "xx_YY"}, "the \xff").code, 2);
    EXPECT_EQ(run({"--spell", "xx_YY"}, "cta12").out, "1:1: cta: cat\n");
    {
        SettingsStore store(storePath);
        set(store, settingKeys.typedText.skipDigits, true);
    }
    EXPECT_EQ(run({"--spell", "xx_YY"}, "cta12").out, "");
    EXPECT_TRUE(run({"--list-dictionaries"}).out.contains("xx_YY\t"));
    qunsetenv("DICPATH");
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
    forEachExample("/tests/pipe/examples.txt", [this](const QString &section, const QStringList &row) {
        if (section != u"Searches")
            return;
        const QByteArray request = "{\"text\":\"a b a\",\"steps\":" + row[0].toUtf8() + "}\n";
        const QJsonObject reply = QJsonDocument::fromJson(run({"--batch"}, request).out).object();
        EXPECT_EQ(reply["text"].toString(), listOf(row[1]).first());
        EXPECT_EQ(reply["clipboard"].toString(), listOf(row[2]).first());
        EXPECT_EQ(QJsonDocument(reply["searches"].toArray()).toJson(QJsonDocument::Compact), row[3]);
    });
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
    forEachExample("/tests/pipe/examples.txt", [this](const QString &section, const QStringList &row) {
        if (section != u"Same")
            return;
        const TextState state = stateOf(row[0]);
        const QJsonObject request{{"text", state.text},
                                  {"selStart", state.selStart},
                                  {"selLength", state.selLength},
                                  {"clipboard", state.text},
                                  {"steps", QJsonArray::fromStringList(listOf(row[1]))}};
        QJsonObject reply = QJsonDocument::fromJson(
                                run({"--batch"}, QJsonDocument(request).toJson(QJsonDocument::Compact)).out)
                                .object();
        QJsonArray texts;
        for (const QJsonValue message : reply.value("messages").toArray())
            texts += message.toObject().value("text");
        reply.insert("messages", texts);
        reply.remove("clipboard");
        reply.remove("searches");
        EXPECT_EQ(QJsonDocument(reply).toJson(),
                  QJsonDocument(replyOfSession(row[0], listOf(row[1]))).toJson());
    });
}

} // namespace
