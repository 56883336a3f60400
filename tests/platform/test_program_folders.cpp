// SPDX-License-Identifier: MIT
#include "platform/program_folders.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace tolvo {

void PrintTo(const ProgramFolders &folders, std::ostream *stream) {
    *stream << folders.programs.toStdString() << " and " << folders.data.toStdString();
}

TEST(ProgramFolders, AreFoundFromWhereverAProgramLies) {
    const QTemporaryDir top;
    const QString prefix = top.filePath(u"a blank and \u00FC"_s);
    ASSERT_TRUE(QDir().mkpath(prefix + u"/share/tolvo"_s));
    const ProgramFolders installed{.programs = prefix + u"/libexec/tolvo"_s,
                                   .data = prefix + u"/share/tolvo"_s};
    const auto alone = [&](const QString &folder) {
        return ProgramFolders{.programs = top.filePath(folder), .data = top.filePath(folder)};
    };
    const std::tuple<QString, ProgramFolders> rows[] = {
        {prefix + u"/bin"_s, installed},
        {prefix + u"/bin/"_s, installed},
        {prefix + u"/libexec/tolvo"_s, installed},
        {prefix, {.programs = prefix, .data = prefix}},
        {top.filePath(u"build/bin"_s), alone(u"build/bin"_s)},
        {top.filePath(u"cabin"_s), alone(u"cabin"_s)},
    };
    for (const auto &[folder, expected] : rows)
        EXPECT_EQ(programFolders(folder), expected) << folder.toStdString();
}

} // namespace tolvo
