// SPDX-License-Identifier: MIT
#include "base/failure.h"
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/SystemProcesses.h"
#include "platform/headless/clipboard_line_ends.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace tolvo {

TEST(ClipboardLineEnds, TextWithoutCrComesInWithCrLfAndGoesOutWithLf) {
    struct Row {
        QString foreign, taken, given; ///< `given`: what goes out after an edit that appended "\r\n!"
    };
    const Row rows[] = {
        {{}, {}, QStringLiteral("\n!")},
        {QStringLiteral("word"), QStringLiteral("word"), QStringLiteral("word\n!")},
        {QStringLiteral("a\nb\n\n"), QStringLiteral("a\r\nb\r\n\r\n"), QStringLiteral("a\nb\n\n\n!")},
        {QStringLiteral("a\r\nb"), QStringLiteral("a\r\nb"), QStringLiteral("a\r\nb\r\n!")},
        {QStringLiteral("a\rb\nc"), QStringLiteral("a\rb\nc"), QStringLiteral("a\rb\nc\r\n!")},
    };
    for (const Row &row : rows) {
        ClipboardLineEnds rule;
        const QString taken = rule.takeIn(row.foreign);
        EXPECT_EQ(taken, row.taken);
        EXPECT_EQ(rule.goOut(taken + QStringLiteral("\r\n!")), row.given);
    }
}

TEST(ClipboardLineEnds, APasteSettlesNothingAndTheNextIntakeSettlesAnew) {
    ClipboardLineEnds rule;
    EXPECT_EQ(rule.goOut(QStringLiteral("a\r\n")), QStringLiteral("a\n"));
    (void)rule.takeIn(QStringLiteral("x\r\n"));
    EXPECT_EQ(ClipboardLineEnds::comeIn(QStringLiteral("a\nb")), QStringLiteral("a\r\nb"));
    EXPECT_EQ(rule.goOut(QStringLiteral("a\r\n")), QStringLiteral("a\r\n"));
    (void)rule.takeIn(QStringLiteral("x\n"));
    EXPECT_EQ(rule.goOut(QStringLiteral("a\r\n")), QStringLiteral("a\n"));
}

TEST(Boxes, AreSaidLineByLineAndAnsweredByNo) {
    std::FILE *stream = std::tmpfile();
    ConsoleBoxes boxes(QStringLiteral("tolvo-pipe: "), stream);
    EXPECT_EQ(boxes.show({.text = QStringLiteral("Caf\u00E9\r\n\r\nend")}), BoxAnswer::Ok);
    EXPECT_EQ(boxes.show({.text = QStringLiteral("Go on?"), .buttons = BoxButtons::YesNo}), BoxAnswer::No);
    std::rewind(stream);
    char said[100] = {};
    (void)std::fread(said, 1, sizeof said - 1, stream);
    std::fclose(stream);
    EXPECT_STREQ(said, "tolvo-pipe: Caf\xC3\xA9\ntolvo-pipe: \ntolvo-pipe: end\ntolvo-pipe: Go on?\n");
    EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST(Processes, AStartedProgramCanBeWaitedFor) {
    QTemporaryDir folder;
    const QString mark = folder.filePath(QStringLiteral("mark"));
    SystemProcesses processes;
    const qint64 process = processes.start(
        QStringLiteral("/bin/sh"),
        {QStringLiteral("-c"), QStringLiteral("sleep 0.3; echo done >\"$0\""), mark}, WindowMode::Normal);
    EXPECT_FALSE(QFile::exists(mark));
    processes.waitFor(process);
    EXPECT_TRUE(QFile::exists(mark));
    processes.waitFor(process); // long gone: returns
}

TEST(Processes, AMissingProgramIsAFailureThatNamesIt) {
    SystemProcesses processes;
    try {
        processes.start(QStringLiteral("/nowhere/Advisor.exe"), {}, WindowMode::Normal);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), failureNumber::fileNotFound);
        EXPECT_TRUE(failure.description().contains(QStringLiteral("/nowhere/Advisor.exe")));
    }
}

} // namespace tolvo
