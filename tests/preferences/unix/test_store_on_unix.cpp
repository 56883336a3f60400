// SPDX-License-Identifier: MIT
// Rights and limits that a settings file has on Unix.
#include "tests/preferences/store_troubles.h"

#include <QFile>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tolvo {
namespace {

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

TEST_F(StoreTroubles, NoFileButADevice) {
    const QString place = u"/dev/full"_s;
    SettingsStore store(place);
    expectGoesOn(store, place, {});
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

} // namespace
} // namespace tolvo
