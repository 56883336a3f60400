// SPDX-License-Identifier: MIT
#include "platform/desktop/DesktopProcesses.h"
#include "tests/ui/user.h"

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

TEST(DesktopProcesses, OpenAnAddressWithoutHandingOnTheOutput) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath(u"mark"_s);
    QFile opener(folder.filePath(u"xdg-open"_s));
    ASSERT_TRUE(opener.open(QIODevice::WriteOnly));
    opener.write("#!/bin/sh\necho \"$1\" \"$(readlink /proc/$$/fd/2)\" >" + mark.toLocal8Bit() + ".new\n" +
                 "mv " + mark.toLocal8Bit() + ".new " + mark.toLocal8Bit() + '\n');
    opener.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    opener.close();
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit() + ':' + path);
    EXPECT_TRUE(DesktopProcesses().open(u"https://tolvo.example/a b"_s));
    qputenv("PATH", path);
    EXPECT_TRUE(QTest::qWaitFor([&] { return QFile::exists(mark); }));
    QFile told(mark);
    ASSERT_TRUE(told.open(QIODevice::ReadOnly));
    EXPECT_EQ(told.readAll(), "https://tolvo.example/a%20b /dev/null\n");
}

} // namespace
} // namespace tolvo
