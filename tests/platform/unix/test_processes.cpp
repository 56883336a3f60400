// SPDX-License-Identifier: MIT
#include "platform/headless/SystemProcesses.h"
#include "tests/support/failures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <csignal>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace tolvo {

namespace {

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

TEST(Processes, AStartedProgramCanBeWaitedFor) {
    QTemporaryDir folder;
    const QString mark = folder.filePath(u"mark"_s);
    SystemProcesses processes;
    const qint64 process =
        processes.start(u"/bin/sh"_s, {u"-c"_s, u"sleep 0.3; echo done >\"$0\""_s, mark}, WindowMode::Normal);
    EXPECT_FALSE(QFile::exists(mark));
    processes.waitFor(process);
    EXPECT_TRUE(QFile::exists(mark));
    processes.waitFor(process); // long gone: returns
    EXPECT_EQ(contentOf(mark), "done\n");
    const QString missing = u"/nowhere/Advisor.exe"_s;
    expectFailure(
        failureNumber::fileNotFound, [&] { processes.start(missing, {}, WindowMode::Normal); }, missing);
}

TEST(Processes, AStartedProgramInheritsNothing) {
    const int inherited = ::dup(STDERR_FILENO);
    // Looked at from outside: a shell that looks at itself opens descriptors for it.
    const qint64 process = SystemProcesses().start(u"/bin/sleep"_s, {u"30"_s}, WindowMode::Normal);
    QStringList found;
    for (const QFileInfo &entry :
         QDir(u"/proc/%1/fd"_s.arg(process)).entryInfoList(QDir::Files | QDir::System))
        found += entry.fileName() + u' ' + entry.symLinkTarget();
    ::kill(static_cast<pid_t>(process), SIGTERM);
    ::close(inherited);
    EXPECT_EQ(found, QStringList({u"0 /dev/null"_s, u"1 /dev/null"_s, u"2 /dev/null"_s}));
}

TEST(Processes, WhatIsHeldBackWaitsAndLeavesWithTheProgram) {
    QTemporaryDir folder;
    const QString mark = folder.filePath(u"mark"_s);
    auto processes = std::make_unique<SystemProcesses>();
    const qint64 process = processes->start(
        {.program = u"/bin/sh"_s,
         .arguments = {u"-c"_s,
                       u"read line; echo $TOLVO_HELD_BACK$TOLVO_ASKED_FOR >\"$0\"; cat; echo end >>\"$0\""_s,
                       mark},
         .heldBack = true});
    QThread::msleep(200);
    EXPECT_FALSE(QFile::exists(mark));
    processes->letGo();
    for (int tries = 0; tries < 100 && !contentOf(mark).endsWith('\n'); ++tries)
        QThread::msleep(50);
    const QByteArray said = QByteArray::number(QCoreApplication::applicationPid()) + '\n';
    EXPECT_EQ(contentOf(mark), said);
    processes.reset();
    SystemProcesses().waitFor(process);
    EXPECT_EQ(contentOf(mark), said + "end\n");
}

} // namespace tolvo
