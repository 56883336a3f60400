// SPDX-License-Identifier: MIT
#include "platform/file_types.h"
#include "platform/headless/SystemProcesses.h"
#include "platform/library_path.h"
#include "platform/special_folders.h"
#include "platform/user_folders.h"
#include "platform/windows/registry_value.h"
#include "tests/support/failures.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <windows.h>

using namespace Qt::StringLiterals;

namespace tolvo {

namespace {

const QString shell = u"C:\\windows\\system32\\cmd.exe"_s;

QByteArray contentOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A batch file for the shell, which reads lines and writes into files.
QString batchIn(const QTemporaryDir &folder, const QByteArray &lines) {
    QFile file(folder.filePath(u"go.bat"_s));
    if (file.open(QIODevice::WriteOnly))
        file.write("@echo off\r\ncd /d \"%~dp0\"\r\n" + lines);
    return QDir::toNativeSeparators(file.fileName());
}

} // namespace

TEST(Processes, AStartedProgramCanBeWaitedFor) {
    const QTemporaryDir folder;
    SystemProcesses processes;
    const qint64 process =
        processes.start(shell, {u"/c"_s, batchIn(folder, "ping -n 2 127.0.0.1 >nul\r\necho done>mark\r\n")},
                        WindowMode::Normal);
    processes.waitFor(process);
    EXPECT_EQ(contentOf(folder.filePath(u"mark"_s)), "done\r\n");
    processes.waitFor(process); // long gone: returns
    const QString missing = u"C:\\nowhere\\Advisor.exe"_s;
    expectFailure(
        failureNumber::fileNotFound, [&] { processes.start(missing, {}, WindowMode::Normal); }, missing);
}

TEST(Processes, WhatIsHeldBackWaitsAndLeavesWithTheProgram) {
    const QTemporaryDir folder;
    const QString mark = folder.filePath(u"mark"_s);
    auto processes = std::make_unique<SystemProcesses>();
    const qint64 process = processes->start(
        {.program = shell,
         .arguments = {u"/c"_s, batchIn(folder, "set /p line=\r\necho %TOLVO_HELD_BACK%>mark\r\n"
                                                "set /p line=\r\necho end>>mark\r\n")},
         .heldBack = true});
    QThread::msleep(500);
    EXPECT_FALSE(QFile::exists(mark));
    processes->letGo();
    for (int tries = 0; tries < 100 && !contentOf(mark).endsWith('\n'); ++tries)
        QThread::msleep(50);
    const QByteArray said = QByteArray::number(QCoreApplication::applicationPid()) + "\r\n";
    EXPECT_EQ(contentOf(mark), said);
    processes.reset();
    SystemProcesses().waitFor(process);
    EXPECT_EQ(contentOf(mark), said + "end\r\n");
}

TEST(Folders, AreThoseOfTheUser) {
    EXPECT_EQ(GetDocumentsFolder(), GetSpecialFolder(specialFolder::documents));
    EXPECT_TRUE(QDir(GetDocumentsFolder()).exists());
    EXPECT_EQ(GetSpecialFolder(12345), QString());
    EXPECT_EQ(userSettingsFolder(),
              QDir::fromNativeSeparators(qEnvironmentVariable("APPDATA")) + u"/Tolvo"_s);
}

/// A key that lives as long as the object. Only an administrator can make one there.
class KeyOfTheMachine {
  public:
    explicit KeyOfTheMachine(std::wstring key) : m_key(std::move(key)) {}
    ~KeyOfTheMachine() { RegDeleteTreeW(HKEY_LOCAL_MACHINE, m_key.c_str()); }
    KeyOfTheMachine(const KeyOfTheMachine &) = delete;
    KeyOfTheMachine &operator=(const KeyOfTheMachine &) = delete;

    bool set(const wchar_t *value, DWORD type, const void *data, DWORD bytes) {
        return RegSetKeyValueW(HKEY_LOCAL_MACHINE, m_key.c_str(), value, type, data, bytes) == ERROR_SUCCESS;
    }

  private:
    std::wstring m_key;
};

TEST(FileTypes, AreThoseThatTheSystemHasRegistered) {
    {
        KeyOfTheMachine type(L"Software\\Classes\\.tolvo-test");
        if (!type.set(nullptr, REG_SZ, L"", sizeof(wchar_t)))
            GTEST_SKIP() << "no right to register a type";
        EXPECT_EQ(isRegisteredType(u"tolvo-test"_s), true);
        EXPECT_EQ(isRegisteredType(u"TOLVO-Test"_s), true);
    }
    EXPECT_EQ(isRegisteredType(u"tolvo-test"_s), false);
}

TEST(Registry, ValuesComeAsText) {
    const QString name = u"SOFTWARE\\Tolvo-Test"_s;
    KeyOfTheMachine key(name.toStdWString());
    static constexpr wchar_t text[] = L"C:\\a b";
    static constexpr DWORD number = 0x1AF;
    if (!key.set(L"Path", REG_SZ, text, sizeof text))
        GTEST_SKIP() << "no right to write values";
    ASSERT_TRUE(key.set(L"Number", REG_DWORD, &number, sizeof number));
    ASSERT_TRUE(key.set(L"Bytes", REG_BINARY, &number, sizeof number));
    EXPECT_EQ(GetKeyValue(name, u"Path"), u"C:\\a b"_s);
    EXPECT_EQ(GetKeyValue(name, u"Number"), u"&h1AF"_s);
    EXPECT_EQ(GetKeyValue(name, u"Bytes"), QString());
    EXPECT_EQ(GetKeyValue(name, u"Missing"), QString());
}

TEST(LibraryPaths, AreVerbatimInUtf8) {
    EXPECT_EQ(libraryPath(u"C:/\u0141/x/../y.dic"_s), "\\\\?\\C:\\\xC5\x81\\y.dic");
    EXPECT_EQ(libraryPath(u"//host/share/y"_s), "\\\\?\\UNC\\host\\share\\y");
    EXPECT_EQ(libraryPath(QString::fromUtf8(libraryPath(u"C:/y"_s))), libraryPath(u"C:/y"_s));
}

} // namespace tolvo
