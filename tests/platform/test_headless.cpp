// SPDX-License-Identifier: MIT
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/SystemProcesses.h"
#include "platform/headless/clipboard_line_ends.h"
#include "platform/kept_free.h"
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

TEST(ClipboardLineEnds, TextWithoutCrComesInWithCrLfAndGoesOutWithLf) {
    // What comes in, what is taken, what goes out after an edit that appended "\r\n!".
    const std::tuple<QString, QString, QString> rows[] = {
        {{}, {}, u"\n!"_s},
        {u"word"_s, u"word"_s, u"word\n!"_s},
        {u"a\nb\n\n"_s, u"a\r\nb\r\n\r\n"_s, u"a\nb\n\n\n!"_s},
        {u"a\r\nb"_s, u"a\r\nb"_s, u"a\r\nb\r\n!"_s},
        {u"a\rb\nc"_s, u"a\rb\nc"_s, u"a\rb\nc\r\n!"_s},
    };
    ClipboardLineEnds rule; // each intake settles anew, a paste settles nothing
    for (const auto &[foreign, taken, given] : rows) {
        EXPECT_EQ(rule.takeIn(foreign), taken);
        EXPECT_EQ(ClipboardLineEnds::comeIn(u"a\nb"_s), u"a\r\nb"_s);
        EXPECT_EQ(rule.goOut(taken + u"\r\n!"_s), given);
    }
}

TEST(Boxes, AreSaidLineByLineAndAnsweredByNo) {
    std::FILE *stream = std::tmpfile();
    ConsoleBoxes boxes(u"tolvo-pipe: "_s, stream);
    EXPECT_EQ(boxes.show({.text = u"Caf\u00E9\r\n\r\nend"_s}), BoxAnswer::Ok);
    EXPECT_EQ(boxes.show({.text = u"Go on?"_s, .buttons = BoxButtons::YesNo}), BoxAnswer::No);
    std::rewind(stream);
    char said[100] = {};
    (void)std::fread(said, 1, sizeof said - 1, stream);
    std::fclose(stream);
    EXPECT_STREQ(said, "tolvo-pipe: Caf\xC3\xA9\ntolvo-pipe: \ntolvo-pipe: end\ntolvo-pipe: Go on?\n");
    EXPECT_EQ(boxes.shown.size(), 2U);
}

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

TEST(KeptFree, PlacesAWindowBesideWhatMustStayVisible) {
    const QRect screen(0, 0, 1000, 800);
    const QSize size(200, 100);
    const struct {
        QList<QRect> areas;
        QPoint corner;
    } rows[] = {
        {{{100, 50, 600, 500}}, {708, 50}},                    // right
        {{{300, 50, 600, 500}}, {92, 50}},                     // left
        {{{100, 50, 800, 500}}, {100, 558}},                   // below
        {{{100, 250, 800, 500}}, {100, 142}},                  // above
        {{{100, 750, 600, 500}}, {708, 700}},                  // within the screen
        {{{50, 50, 900, 700}, {300, 50, 650, 700}}, {0, 50}},  // over the rest of the window
        {{{0, 0, 1000, 800}, {50, 50, 900, 700}}, {800, 700}}, // nowhere
        {{}, {800, 700}},
    };
    for (const auto &row : rows)
        EXPECT_TRUE(placeBeside(row.areas, size, screen) == row.corner)
            << writtenAreas(row.areas).toStdString();
    const QList<QRect> areas{{-5, 2, 3, 4}, {5, 6, 7, 8}};
    EXPECT_TRUE(readAreas(writtenAreas(areas)) == areas);
    EXPECT_TRUE(readAreas(u"1 2 3").isEmpty());
    EXPECT_TRUE(readAreas(u"a b c d").isEmpty());
}

} // namespace tolvo
