// SPDX-License-Identifier: MIT
#include "app/arguments.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {

TEST(Arguments, SayWhatTheRunIs) {
    using Mode = Arguments::Mode;
    const struct {
        QStringList arguments;
        Mode mode;
        QString button, tool, file = {};
    } rows[] = {
        {{}, Mode::Session, {}, {}},
        {{u"-platform"_s, u"xcb"_s}, Mode::Session, {}, {}},
        {{u"-platform"_s, u"xcb"_s, u"a b.txt"_s}, Mode::Session, {}, {}, u"a b.txt"_s},
        {{u"-reverse"_s, u"/x/A.TolvoButton"_s}, Mode::Session, {}, {}, u"/x/A.TolvoButton"_s},
        {{QString()}, Mode::Session, {}, {}}, // what a launcher gives for no file
        {{u"--button"_s, u"3"_s}, Mode::Command, u"3"_s, {}},
        {{u"--button=Mend = clean"_s}, Mode::Command, u"Mend = clean"_s, {}},
        {{u"--tool"_s, u"foWRP:Width=60, Tab=True"_s}, Mode::Command, {}, u"foWRP:Width=60, Tab=True"_s},
        {{u"--tool=foTRA"_s, u"-platform"_s, u"xcb"_s}, Mode::Command, {}, u"foTRA"_s},
        {{u"--help"_s, u"--nonsense"_s}, Mode::Help, {}, {}},
        {{u"--button"_s, u"3"_s, u"-h"_s}, Mode::Help, {}, {}},
        {{u"--version"_s}, Mode::Version, {}, {}},
    };
    for (const auto &row : rows) {
        const Arguments read = readArguments(row.arguments);
        const std::string shown = row.arguments.join(u' ').toStdString();
        EXPECT_EQ(read.error, QString()) << shown;
        EXPECT_EQ(read.mode, row.mode) << shown;
        EXPECT_EQ(read.button, row.button) << shown;
        EXPECT_EQ(read.tool, row.tool) << shown;
        EXPECT_EQ(read.file, row.file) << shown;
    }
}

TEST(Arguments, SayWhatIsWrong) {
    const std::pair<QStringList, QString> rows[] = {
        {{u"--buton"_s, u"3"_s}, u"unknown option \"--buton\"; --help lists them"_s},
        {{u"--button"_s}, u"--button needs a value"_s},
        {{u"--tool="_s}, u"--tool needs a value"_s},
        {{u"--button=1"_s, u"--tool=foTRA"_s}, u"one of --button and --tool, and only once"_s},
        {{u"a.tolvobutton"_s, u"b.tolvobutton"_s}, u"only one file at a time"_s},
        {{u"a.tolvobutton"_s, u"--tool=foTRA"_s}, u"--button and --tool take no file"_s},
        {{u"--tool=foTRA"_s, u"--tool=foTRB"_s}, u"one of --button and --tool, and only once"_s},
    };
    for (const auto &[arguments, error] : rows)
        EXPECT_EQ(readArguments(arguments).error, error);
}

} // namespace tolvo
