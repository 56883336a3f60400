// SPDX-License-Identifier: MIT
// A file that can't be used: the user is told once, the session goes on, nothing is overwritten.
#include "preferences/sqlite.h"
#include "tests/preferences/store_troubles.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

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

TEST_F(StoreTroubles, NoFileAtAll) {
    const QString place = QDir::toNativeSeparators(folder.path());
    SettingsStore store(folder.path());
    expectGoesOn(store, place, {});
}

TEST_F(StoreTroubles, APathMayBeLongAndHaveAnyLetters) {
    const QString deep = folder.filePath(u"Żółć and \u65E5\u672C"_s +
                                         u"/a name of some length"_s.repeated(12) + u"/settings.sqlite"_s);
    ASSERT_GT(deep.size(), 260);
    {
        SettingsStore store(deep);
        store.SaveSetting(app, section, u"new"_s, u"1"_s);
        EXPECT_EQ(store.takeTrouble(), QString());
    }
    EXPECT_EQ(SettingsStore(deep).GetSetting(app, section, u"new"_s), u"1"_s);
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
