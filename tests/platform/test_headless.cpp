// SPDX-License-Identifier: MIT
#include "base/failure.h"
#include "platform/headless/ConsoleBoxes.h"
#include "platform/headless/SystemProcesses.h"
#include "platform/headless/clipboard_line_ends.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tolvo {

TEST(ClipboardLineEnds, TextWithoutCrComesInWithCrLfAndGoesOutWithLf) {
    struct Row {
        QString foreign, taken, given; ///< `given`: what goes out after an edit that appended "\r\n!"
    };
    const Row rows[] = {
        {{}, {}, u"\n!"_s},
        {u"word"_s, u"word"_s, u"word\n!"_s},
        {u"a\nb\n\n"_s, u"a\r\nb\r\n\r\n"_s, u"a\nb\n\n\n!"_s},
        {u"a\r\nb"_s, u"a\r\nb"_s, u"a\r\nb\r\n!"_s},
        {u"a\rb\nc"_s, u"a\rb\nc"_s, u"a\rb\nc\r\n!"_s},
    };
    for (const Row &row : rows) {
        ClipboardLineEnds rule;
        const QString taken = rule.takeIn(row.foreign);
        EXPECT_EQ(taken, row.taken);
        EXPECT_EQ(rule.goOut(taken + u"\r\n!"_s), row.given);
    }
}

TEST(ClipboardLineEnds, APasteSettlesNothingAndTheNextIntakeSettlesAnew) {
    ClipboardLineEnds rule;
    EXPECT_EQ(rule.goOut(u"a\r\n"_s), u"a\n"_s);
    (void)rule.takeIn(u"x\r\n"_s);
    EXPECT_EQ(ClipboardLineEnds::comeIn(u"a\nb"_s), u"a\r\nb"_s);
    EXPECT_EQ(rule.goOut(u"a\r\n"_s), u"a\r\n"_s);
    (void)rule.takeIn(u"x\n"_s);
    EXPECT_EQ(rule.goOut(u"a\r\n"_s), u"a\n"_s);
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
}

TEST(Processes, AMissingProgramIsAFailureThatNamesIt) {
    SystemProcesses processes;
    try {
        processes.start(u"/nowhere/Advisor.exe"_s, {}, WindowMode::Normal);
        FAIL();
    } catch (const Failure &failure) {
        EXPECT_EQ(failure.number(), failureNumber::fileNotFound);
        EXPECT_TRUE(failure.description().contains(u"/nowhere/Advisor.exe"_s));
    }
}

} // namespace tolvo
