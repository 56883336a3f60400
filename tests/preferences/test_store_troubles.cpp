// SPDX-License-Identifier: MIT
// A file that can't be used: the user is told once, the session goes on, nothing is overwritten.
#include "preferences/settings_store.h"
#include "preferences/sqlite.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString app = u"Tolvo"_s;
const QString section = u"S"_s;

QByteArray bytesOf(const QString &path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

void overwrite(const QString &path, qint64 offset, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    file.seek(offset);
    file.write(bytes);
}

struct StoreTroubles : testing::Test {
    QTemporaryDir folder;
    QString path = folder.filePath(u"settings.sqlite"_s);

    void SetUp() override {
        SettingsStore store(path);
        store.SaveSetting(app, section, u"old"_s, u"value"_s);
    }

    /// The session works, whatever became of the file, and has something to say exactly once.
    static void expectGoesOn(SettingsStore &store, const QString &word, const QString &old) {
        store.SaveSetting(app, section, u"new"_s, u"1"_s);
        store.increment(app, section, u"new"_s);
        EXPECT_EQ(store.GetSetting(app, section, u"new"_s), u"2"_s);
        EXPECT_EQ(store.GetSetting(app, section, u"old"_s), old);
        const QString trouble = store.takeTrouble();
        EXPECT_TRUE(trouble.contains(word)) << trouble.toStdString();
        EXPECT_EQ(store.takeTrouble(), QString());
    }
};

TEST_F(StoreTroubles, DamagedFileIsSetAside) {
    const QByteArray rubbish("this is no database, and was never meant to be one");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(rubbish);
    file.close();
    {
        SettingsStore store(path);
        expectGoesOn(store, u"settings.sqlite.damaged-1"_s, {});
    }
    EXPECT_EQ(bytesOf(path + u".damaged-1"_s), rubbish);
    EXPECT_EQ(SettingsStore(path).GetSetting(app, section, u"new"_s), u"2"_s) << "a new file has been made";
    overwrite(path, 0, rubbish);
    SettingsStore again(path);
    EXPECT_TRUE(again.takeTrouble().contains(u"damaged-2"_s)) << "the first is not overwritten";
    EXPECT_EQ(bytesOf(path + u".damaged-1"_s), rubbish);
}

TEST_F(StoreTroubles, WhatCanBeReadOfADamagedFileIsKept) {
    {
        SettingsStore store(path);
        SettingsStore::Transaction transaction(store);
        for (int i = 0; i < 5000; ++i)
            store.SaveSetting(app, u"Many"_s, QString::number(i), QString(20, QChar(u'x')));
        transaction.commit();
    }
    const qint64 size = QFileInfo(path).size();
    overwrite(path, size / 2 / 4096 * 4096, QByteArray(qsizetype{4} * 4096, '\xA5'));
    SettingsStore store(path);
    (void)store.GetAllSettings(app, u"Many"_s); // comes upon the damage
    const auto kept = store.GetAllSettings(app, u"Many"_s);
    ASSERT_TRUE(kept);
    EXPECT_GT(kept->size(), 2500);
    EXPECT_LT(kept->size(), 5000);
    expectGoesOn(store, u"damaged-1"_s, u"value"_s);
}

TEST_F(StoreTroubles, NewerAndForeignFilesAreLeftAlone) {
    const struct {
        const char *sql;
        QString word;
    } cases[] = {{"PRAGMA user_version = 2", u"newer version"_s},
                 {"PRAGMA user_version = 0", u"another program"_s},
                 {"PRAGMA user_version = -1", u"another program"_s},
                 {"DROP TABLE value; PRAGMA user_version = 1", u"another program"_s}};
    for (const auto &[sql, word] : cases) {
        {
            SqliteConnection connection(path, 0);
            connection.execute(sql);
        }
        const QByteArray before = bytesOf(path);
        {
            SettingsStore store(path);
            expectGoesOn(store, word, {});
        }
        EXPECT_EQ(bytesOf(path), before);
        EXPECT_EQ(QDir(folder.path()).entryList({u"*damaged*"_s}), QStringList());
    }
}

TEST_F(StoreTroubles, WhatIsMadeIsTheUsersAlone) {
    const auto rights = [](const QString &place) {
        struct stat state {};
        return stat(qPrintable(place), &state) == 0 ? state.st_mode & 0777 : 0;
    };
    const mode_t before = umask(022);
    const QString deep = folder.filePath(u"a/b/settings.sqlite"_s);
    SettingsStore store(deep);
    store.SaveSetting(app, section, u"new"_s, u"1"_s);
    for (const QString &file : {deep, deep + u"-wal"_s, deep + u"-shm"_s})
        EXPECT_EQ(rights(file), 0600U) << file.toStdString();
    for (const QString &made : {u"a"_s, u"a/b"_s})
        EXPECT_EQ(rights(folder.filePath(made)), 0700U) << made.toStdString();
    umask(before);
}

TEST_F(StoreTroubles, WriteProtectedFileIsRead) {
    // The superuser may write everything: become somebody else.
    const bool superuser = geteuid() == 0;
    constexpr auto read = QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther;
    QFile::setPermissions(path, read);
    QFile::setPermissions(folder.path(), read | QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther);
    if (superuser) {
        ASSERT_EQ(seteuid(65534), 0);
    }
    {
        SettingsStore store(path);
        expectGoesOn(store, path, u"value"_s);
        SettingsStore none(folder.filePath(u"new folder/settings.sqlite"_s));
        expectGoesOn(none, u"new folder"_s, {});
    }
    if (superuser) {
        ASSERT_EQ(seteuid(0), 0);
    }
    QFile::setPermissions(folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(SettingsStore(path).GetSetting(app, section, u"new"_s, u"absent"_s), u"absent"_s);
}

TEST_F(StoreTroubles, NoFileAtAll) {
    for (const QString &place : {u"/dev/full"_s, folder.path()}) {
        SettingsStore store(place);
        expectGoesOn(store, place, {});
    }
}

/// Files can't grow while this stands: what a full disk feels like.
struct FullDisk {
    FullDisk() {
        signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit none{0, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before); }
    rlimit before{};
};

TEST_F(StoreTroubles, FullDiskKeepsTheSessionAndATransactionWhole) {
    {
        SettingsStore store(path);
        {
            const FullDisk disk;
            SettingsStore::Transaction transaction(store);
            store.SaveSetting(app, section, u"first"_s, u"1"_s);
            store.SaveSetting(app, u"Big"_s, u"second"_s, QString(20'000'000, QChar(u'x')));
            transaction.commit();
            EXPECT_EQ(store.GetSetting(app, section, u"first"_s), u"1"_s);
            {
                SettingsStore::Transaction dropped(store);
                store.SaveSetting(app, section, u"first"_s, u"dropped"_s);
            }
            expectGoesOn(store, path, u"value"_s);
            EXPECT_EQ(SettingsStore(path).GetSetting(app, section, u"first"_s, u"absent"_s), u"absent"_s);
        }
    }
    SettingsStore store(path); // there was room again at the end
    EXPECT_EQ(store.GetSetting(app, section, u"first"_s), u"1"_s);
    EXPECT_EQ(store.GetSetting(app, section, u"new"_s), u"2"_s);
    EXPECT_EQ(store.GetSetting(app, u"Big"_s, u"second"_s).size(), 20'000'000);
}

TEST_F(StoreTroubles, AFileThatIsHeldForLongGetsTheChangesAtTheEnd) {
    auto holder = std::make_unique<SqliteConnection>(path, 0);
    holder->execute("BEGIN IMMEDIATE");
    {
        SettingsStore store(path);
        expectGoesOn(store, u"another program is holding it"_s, u"value"_s);
        holder.reset();
    }
    EXPECT_EQ(SettingsStore(path).GetSetting(app, section, u"new"_s), u"2"_s);
}

} // namespace
} // namespace tolvo
