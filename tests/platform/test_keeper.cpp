// SPDX-License-Identifier: MIT
// The clipboard behind the end of the program, on an X server of the test's own, with xclip as the other
// program.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>

namespace {

bool waitUntil(int milliseconds, const std::function<bool()> &condition) {
    for (QElapsedTimer timer; !condition(); QThread::msleep(10)) {
        if (!timer.isValid())
            timer.start();
        if (timer.elapsed() > milliseconds)
            return false;
    }
    return true;
}

class Keeper : public testing::Test {
  protected:
    void SetUp() override {
        for (const char *tool : {"Xvfb", "xclip"}) {
            if (QStandardPaths::findExecutable(QString::fromLatin1(tool)).isEmpty())
                GTEST_SKIP() << tool << " is not installed";
        }
        server.start(QStringLiteral("Xvfb"),
                     {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-nolisten"),
                      QStringLiteral("tcp"), QStringLiteral("-screen"), QStringLiteral("0"),
                      QStringLiteral("640x480x24")});
        ASSERT_TRUE(waitUntil(20'000, [&] { return server.waitForReadyRead(10) || server.canReadLine(); }));
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"),
                           u':' + QString::fromLatin1(server.readAllStandardOutput().trimmed()));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    }
    void TearDown() override {
        server.terminate();
        server.waitForFinished();
    }

    void start(QProcess &process, const QString &program, const QStringList &arguments) const {
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
    }
    /// Runs a program to the end of its output; its exit code, negative for a signal.
    int run(const QString &program, const QStringList &arguments, QByteArray *output = nullptr) const {
        QProcess process;
        start(process, program, arguments);
        EXPECT_TRUE(process.waitForFinished(20'000)) << program.toStdString();
        if (output)
            *output = process.readAllStandardOutput();
        return process.exitStatus() == QProcess::CrashExit ? -process.exitCode() : process.exitCode();
    }
    [[nodiscard]] QStringList probeArguments(int exitCode, const QStringList &what) const {
        return QStringList{pidFile(), QString::number(exitCode)} + what;
    }
    [[nodiscard]] int probe(int exitCode, const QStringList &what, QByteArray *output = nullptr) const {
        return run(probePath, probeArguments(exitCode, what), output);
    }
    [[nodiscard]] QString pidFile() const { return folder.filePath(QStringLiteral("pid")); }
    /// The process of the last session: a keeper, if it still lives.
    [[nodiscard]] QByteArray sessionProcess() const {
        QFile file(pidFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool lives(const QByteArray &process) {
        QFile file(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(process)));
        if (process.isEmpty() || !file.open(QIODevice::ReadOnly))
            return false;
        const QByteArray stat = file.readAll();
        return stat.mid(stat.lastIndexOf(')') + 2, 1) != "Z";
    }
    [[nodiscard]] QByteArray pasted() const {
        QByteArray text;
        run(QStringLiteral("xclip"),
            {QStringLiteral("-o"), QStringLiteral("-selection"), QStringLiteral("clipboard")}, &text);
        return text;
    }
    /// Another program takes the clipboard; it ends with the server.
    void otherProgramCopies(QProcess &other, const QByteArray &text) const {
        start(other, QStringLiteral("xclip"),
              {QStringLiteral("-quiet"), QStringLiteral("-i"), QStringLiteral("-selection"),
               QStringLiteral("clipboard")});
        other.write(text);
        EXPECT_TRUE(other.waitForBytesWritten());
        other.closeWriteChannel();
    }

    const QString probePath = qEnvironmentVariable("TOLVO_KEEPER_PROBE");
    QTemporaryDir folder;
    QProcess server;
    QProcessEnvironment environment;
};

TEST_F(Keeper, TheTextOutlivesTheRunAndATakeoverEndsTheKeeper) {
    EXPECT_EQ(probe(0, {QStringLiteral("write"), QStringLiteral("caf\u00E9\r\nend")}), 0);
    const QByteArray keeper = sessionProcess();
    EXPECT_TRUE(lives(keeper));
    EXPECT_EQ(pasted(), "caf\xC3\xA9\nend");
    QProcess other;
    otherProgramCopies(other, "other");
    EXPECT_TRUE(waitUntil(1000, [&] { return !lives(keeper); }));
    EXPECT_EQ(pasted(), "other");
    other.kill();
    other.waitForFinished();
}

TEST_F(Keeper, EightSessionsLeaveOneKeeper) {
    QByteArrayList keepers;
    for (int i = 0; i < 8; ++i) {
        EXPECT_EQ(probe(i, {QStringLiteral("write"), QString::number(i)}), i);
        keepers += sessionProcess();
    }
    EXPECT_TRUE(waitUntil(1000, [&] { return std::count_if(keepers.begin(), keepers.end(), lives) == 1; }));
    EXPECT_TRUE(lives(keepers.last()));
    EXPECT_EQ(pasted(), "7");
    // An empty text leaves an empty clipboard, and nobody to serve it.
    EXPECT_EQ(probe(0, {QStringLiteral("write"), QString()}), 0);
    EXPECT_TRUE(waitUntil(1000, [&] { return !lives(keepers.last()) && !lives(sessionProcess()); }));
    EXPECT_EQ(pasted(), "");
}

TEST_F(Keeper, TwentyMegabytesComeThrough) {
    EXPECT_EQ(probe(0, {QStringLiteral("fill"), QStringLiteral("20000000")}), 0);
    EXPECT_EQ(pasted(), QByteArray(20'000'000, 'x'));
}

TEST_F(Keeper, LeavesItsTerminalAndWhatItInherited) {
    // The shell's substitution returns only when nobody holds its pipe any more, neither as output nor as 7.
    const QString command = QStringLiteral("out=$(\"$0\" \"$@\" 7>&1; echo code $?); echo \"got $out\"");
    QByteArray output;
    EXPECT_EQ(run(QStringLiteral("/bin/sh"),
                  QStringList{QStringLiteral("-c"), command, probePath} +
                      probeArguments(3, {QStringLiteral("write"), QStringLiteral("x")}),
                  &output),
              0);
    EXPECT_EQ(output, "got code 3\n");
    const QByteArray keeper = sessionProcess();
    EXPECT_TRUE(lives(keeper));
    QFile stat(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(keeper)));
    ASSERT_TRUE(stat.open(QIODevice::ReadOnly));
    const QByteArray all = stat.readAll();
    EXPECT_EQ(all.mid(all.lastIndexOf(')') + 2).split(' ').value(3), keeper) << "a session of its own";
}

TEST_F(Keeper, EndsAsTheSessionEnds) {
    EXPECT_EQ(probe(5, {QStringLiteral("leave")}), 5);
    EXPECT_EQ(probe(0, {QStringLiteral("crash")}), -SIGSEGV);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
        QFile::remove(pidFile());
        QProcess process;
        start(process, probePath, probeArguments(0, {QStringLiteral("hang")}));
        ASSERT_TRUE(waitUntil(10'000, [&] { return lives(sessionProcess()); }));
        ::kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(5000));
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_TRUE(waitUntil(1000, [&] { return !lives(sessionProcess()); }));
    }
}

TEST_F(Keeper, AnOwnerThatHangsIsAnEmptyClipboardAndIsSaid) {
    QProcess other;
    otherProgramCopies(other, "a\nb");
    EXPECT_TRUE(waitUntil(5000, [&] { return pasted() == "a\nb"; }));
    QByteArray output;
    EXPECT_EQ(probe(0, {QStringLiteral("take")}, &output), 0);
    EXPECT_EQ(output, "[a\r\nb]\n");
    ::kill(static_cast<pid_t>(other.processId()), SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(probe(0, {QStringLiteral("take")}, &output), 0);
    EXPECT_EQ(output, "waiting\nwaited\n[]\n");
    EXPECT_LT(timer.elapsed(), 10'000);
    other.kill();
    other.waitForFinished();
}

} // namespace

int main(int argc, char **argv) {
    QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
