// SPDX-License-Identifier: MIT
// Several processes on one file: nothing that was committed is lost, whoever dies when.
#include "preferences/settings_store.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <array>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace tolvo {
namespace {

const QString app = u"Tolvo"_s;
const QString section = u"Deep\\Section"_s;

/// Runs `body` in a child process, which ends without a word.
template <class Body>
pid_t inChild(Body body) {
    const pid_t child = fork();
    if (child == 0) {
        body();
        _exit(0);
    }
    return child;
}

int waitFor(pid_t child) {
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

TEST(StoreProcesses, ConcurrentIncrementsAreAllCounted) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.sqlite"_s);
    constexpr int each = 500;
    std::array<pid_t, 3> children{};
    for (pid_t &child : children) { // the file is made by whoever comes first
        child = inChild([&] {
            SettingsStore store(path);
            for (int i = 0; i < each; ++i)
                store.increment(app, section, u"count"_s);
            if (!store.takeTrouble().isEmpty())
                _exit(1);
        });
    }
    for (const pid_t child : children)
        EXPECT_EQ(waitFor(child), 0);
    EXPECT_EQ(SettingsStore(path).GetSetting(app, section, u"count"_s), QString::number(each * 3));
}

/// Numbers that a writer has had committed, seen by the parent after the writer's death.
struct Progress {
    volatile sig_atomic_t started;
    volatile sig_atomic_t committed;
};

TEST(StoreProcesses, KilledWritersLoseNothingCommitted) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"settings.sqlite"_s);
    auto *const progress = static_cast<Progress *>(
        mmap(nullptr, 2 * sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    ASSERT_NE(progress, MAP_FAILED);
    const auto key = [](int writer) { return QString::number(writer); };
    const auto writeForEver = [&](int writer) {
        SettingsStore store(path);
        Progress &mine = progress[writer];
        for (int i = mine.committed + 1;; ++i) {
            mine.started = i;
            SettingsStore::Transaction transaction(store);
            store.SaveSetting(app, section, key(writer), QString::number(i));
            store.SaveSetting(app, section + u"\\copy"_s, key(writer), QString::number(i));
            transaction.commit();
            mine.committed = i;
        }
    };
    for (int round = 0; round < 100; ++round) { // 200 kills
        std::array<pid_t, 2> writers{};
        for (int writer = 0; writer < 2; ++writer)
            writers[writer] = inChild([&] { writeForEver(writer); });
        usleep(QRandomGenerator::global()->bounded(2000, 15000));
        for (const pid_t writer : writers)
            ::kill(writer, SIGKILL);
        for (const pid_t writer : writers)
            waitFor(writer);
        SettingsStore store(path);
        for (int writer = 0; writer < 2; ++writer) {
            const int stored = store.GetSetting(app, section, key(writer), 0).toInt();
            EXPECT_GE(stored, progress[writer].committed);
            EXPECT_LE(stored, progress[writer].started);
            EXPECT_EQ(stored, store.GetSetting(app, section + u"\\copy"_s, key(writer), 0).toInt());
            progress[writer].committed = stored;
        }
        ASSERT_EQ(store.takeTrouble(), QString());
    }
    EXPECT_GT(progress[0].committed + progress[1].committed, 200) << "the writers did get to write";
    munmap(progress, 2 * sizeof(Progress));
}

} // namespace
} // namespace tolvo
