// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QStandardPaths>
#include <gtest/gtest.h>

namespace tolvo::test {

inline bool isInstalled(const char *command) {
    return !QStandardPaths::findExecutable(QString::fromLatin1(command)).isEmpty();
}

/// What another program of this machine says to an input; it has to succeed within a minute.
inline QByteArray outputOf(const QString &command, const QStringList &arguments, const QByteArray &input) {
    QProcess process;
    process.start(command, arguments);
    process.write(input);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(60'000)) << command.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return process.readAllStandardOutput();
}

} // namespace tolvo::test
