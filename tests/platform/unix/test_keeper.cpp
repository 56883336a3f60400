// SPDX-License-Identifier: MIT
// The clipboard after the end of the program, on an X server of the test's own, with xclip as the other
// program.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>

using namespace Qt::StringLiterals;

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
        server.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-noreset"_s, u"-nolisten"_s, u"tcp"_s,
                                 u"-screen"_s, u"0"_s, u"640x480x24"_s});
        ASSERT_TRUE(waitUntil(20'000, [&] { return server.waitForReadyRead(10) || server.canReadLine(); }));
        environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"DISPLAY"_s,
                           u':' + QString::fromLatin1(server.readAllStandardOutput().trimmed()));
        environment.insert(u"QT_QPA_PLATFORM"_s, u"xcb"_s);
        environment.remove(u"WAYLAND_DISPLAY"_s);
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
    [[nodiscard]] QString pidFile() const { return folder.filePath(u"pid"_s); }
    /// The process of the last session: a keeper, if it still lives.
    [[nodiscard]] QByteArray sessionProcess() const {
        QFile file(pidFile());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool lives(const QByteArray &process) {
        QFile file(u"/proc/%1/stat"_s.arg(QString::fromLatin1(process)));
        if (process.isEmpty() || !file.open(QIODevice::ReadOnly))
            return false;
        const QByteArray stat = file.readAll();
        return stat.mid(stat.lastIndexOf(')') + 2, 1) != "Z";
    }
    [[nodiscard]] QByteArray pasted() const {
        QByteArray text;
        run(u"xclip"_s, {u"-o"_s, u"-selection"_s, u"clipboard"_s}, &text);
        return text;
    }
    /// Another program takes the clipboard; it ends with the server.
    void otherProgramCopies(QProcess &other, const QByteArray &text,
                            const QString &target = u"UTF8_STRING"_s) const {
        start(other, u"xclip"_s,
              {u"-quiet"_s, u"-i"_s, u"-selection"_s, u"clipboard"_s, u"-target"_s, target});
        other.write(text);
        while (other.bytesToWrite() > 0)
            ASSERT_TRUE(other.waitForBytesWritten());
        other.closeWriteChannel();
    }

    const QString probePath = qEnvironmentVariable("TOLVO_KEEPER_PROBE");
    QTemporaryDir folder;
    QProcess server;
    QProcessEnvironment environment;
};

TEST_F(Keeper, TheTextOutlivesTheRunAndATakeoverEndsTheKeeper) {
    EXPECT_EQ(probe(0, {u"write"_s, u"caf\u00E9\r\nend"_s}), 0);
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
        EXPECT_EQ(probe(i, {u"write"_s, QString::number(i)}), i);
        keepers += sessionProcess();
    }
    EXPECT_TRUE(waitUntil(1000, [&] { return std::count_if(keepers.begin(), keepers.end(), lives) == 1; }));
    EXPECT_TRUE(lives(keepers.last()));
    EXPECT_EQ(pasted(), "7");
    // An empty text leaves an empty clipboard, and nobody to serve it.
    EXPECT_EQ(probe(0, {u"write"_s, QString()}), 0);
    EXPECT_TRUE(waitUntil(1000, [&] { return !lives(keepers.last()) && !lives(sessionProcess()); }));
    EXPECT_EQ(pasted(), "");
}

TEST_F(Keeper, TwentyMegabytesComeThrough) {
    EXPECT_EQ(probe(0, {u"fill"_s, u"20000000"_s}), 0);
    EXPECT_EQ(pasted(), QByteArray(20'000'000, 'x'));
}

TEST_F(Keeper, LeavesItsTerminalAndWhatItInherited) {
    // The shell's substitution returns only when nobody holds its pipe any more, neither as output nor as 7.
    const QString command = u"out=$(\"$0\" \"$@\" 7>&1; echo code $?); echo \"got $out\""_s;
    QByteArray output;
    EXPECT_EQ(run(u"/bin/sh"_s,
                  QStringList{u"-c"_s, command, probePath} + probeArguments(3, {u"write"_s, u"x"_s}),
                  &output),
              0);
    EXPECT_EQ(output, "got code 3\n");
    const QByteArray keeper = sessionProcess();
    EXPECT_TRUE(lives(keeper));
    QFile stat(u"/proc/%1/stat"_s.arg(QString::fromLatin1(keeper)));
    ASSERT_TRUE(stat.open(QIODevice::ReadOnly));
    const QByteArray all = stat.readAll();
    EXPECT_EQ(all.mid(all.lastIndexOf(')') + 2).split(' ').value(3), keeper) << "a session of its own";
}

TEST_F(Keeper, EndsAsTheSessionEnds) {
    EXPECT_EQ(probe(5, {u"leave"_s}), 5);
    EXPECT_EQ(probe(0, {u"crash"_s}), -SIGSEGV);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGKILL}) {
        QFile::remove(pidFile());
        QProcess process;
        start(process, probePath, probeArguments(0, {u"hang"_s}));
        ASSERT_TRUE(waitUntil(10'000, [&] { return lives(sessionProcess()); }));
        ::kill(static_cast<pid_t>(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(5000));
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit);
        EXPECT_EQ(process.exitCode(), signal);
        EXPECT_TRUE(waitUntil(1000, [&] { return !lives(sessionProcess()); }));
    }
}

TEST_F(Keeper, TakesTextOfEveryForm) {
    const std::tuple<const char *, QByteArray, QByteArray> rows[] = {
        {"UTF8_STRING", "caf\xC3\xA9\n", "caf\xC3\xA9\r\n"},
        {"STRING", "caf\xE9", "caf\xC3\xA9"},
        {"text/plain", "caf\xC3\xA9", "caf\xC3\xA9"},
        {"text/uri-list", "file:///a%20b\r\n", "file:///a b"},
        {"text/uri-list", "file:///a\r\nfile:///b\r\n", "file:///a\r\nfile:///b\r\n"},
        {"image/png", "picture", ""},
        {"UTF8_STRING", QByteArray(3'000'000, 'x'), QByteArray(3'000'000, 'x')}, // comes in pieces
    };
    for (const auto &[target, text, taken] : rows) {
        QProcess other;
        otherProgramCopies(other, text, QString::fromLatin1(target));
        QByteArray output;
        EXPECT_TRUE(waitUntil(5000,
                              [&, said = '[' + taken + "]\n"] {
                                  EXPECT_EQ(probe(0, {u"take"_s}, &output), 0);
                                  return output == said;
                              }))
            << target << output.left(100).toStdString();
        other.kill();
        other.waitForFinished();
    }
}

} // namespace
