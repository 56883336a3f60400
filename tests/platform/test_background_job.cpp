// SPDX-License-Identifier: MIT
#include "platform/background_job.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <gtest/gtest.h>
#include <stdexcept>

namespace tolvo {
namespace {

/// Lets events come in until `done`; fails after ten seconds.
void waitFor(const std::function<bool()> &done) {
    QElapsedTimer timer;
    timer.start();
    while (!done() && timer.elapsed() < 10'000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 20);
    ASSERT_TRUE(done());
}

/// A job that lasts until nobody waits for it.
int untilCancelled(const Cancellation &cancellation) {
    while (!cancellation.cancelled())
        std::this_thread::yield();
    return 0;
}

TEST(BackgroundJob, AnswersInTheThreadOfTheWindow) {
    BackgroundWorker worker;
    BackgroundJob job(worker);
    std::thread::id worked;
    std::thread::id delivered;
    job.start([](const Cancellation &) { return std::this_thread::get_id(); },
              [&](std::thread::id where) {
                  worked = where;
                  delivered = std::this_thread::get_id();
              });
    EXPECT_EQ(delivered, std::thread::id());
    waitFor([&] { return delivered != std::thread::id(); });
    EXPECT_EQ(delivered, std::this_thread::get_id());
    EXPECT_NE(worked, delivered);
}

TEST(BackgroundJob, ANewStartEndsTheJobBefore) {
    BackgroundWorker worker;
    BackgroundJob job(worker);
    QList<int> answers;
    const auto deliver = [&](int answer) { answers += answer; };
    job.start(untilCancelled, deliver);
    for (int i = 1; i <= 3; ++i)
        job.start([i](const Cancellation &) { return i; }, deliver);
    waitFor([&] { return !answers.isEmpty(); });
    EXPECT_EQ(answers, QList<int>{3});
}

TEST(BackgroundJob, AnAnswerThatIsUnderWayIsDroppedOnceCancelled) {
    BackgroundWorker worker;
    BackgroundJob job(worker);
    BackgroundJob after(worker);
    bool late = false;
    std::atomic<bool> worked = false;
    job.start([&worked](const Cancellation &) { return worked = true; }, [&](bool) { late = true; });
    while (!worked)
        std::this_thread::yield();
    job.cancel();
    bool done = false;
    after.start([](const Cancellation &) { return true; }, [&](bool) { done = true; });
    waitFor([&] { return done; });
    EXPECT_FALSE(late);
}

TEST(BackgroundJob, AFailureHasNoAnswerAndTheNextJobRuns) {
    for (const auto thread : {BackgroundWorker::Thread::Own, BackgroundWorker::Thread::None}) {
        BackgroundWorker worker(thread);
        BackgroundJob failing(worker);
        BackgroundJob job(worker);
        int answers = 0;
        const auto count = [&](int answer) { answers += answer; };
        failing.start([](const Cancellation &) -> int { throw std::runtime_error("none"); }, count);
        job.start([](const Cancellation &) { return 1; }, count);
        waitFor([&] { return answers > 0; });
        EXPECT_EQ(answers, 1);
    }
}

TEST(BackgroundJob, WithoutAThreadTheAnswerIsThereAtOnce) {
    BackgroundWorker worker(BackgroundWorker::Thread::None);
    BackgroundJob job(worker);
    int answer = 0;
    job.start([](const Cancellation &) { return 7; }, [&](int given) { answer = given; });
    EXPECT_EQ(answer, 7);
}

TEST(BackgroundJob, TheEndDoesNotWaitForTheRestOfAJob) {
    bool delivered = false;
    {
        BackgroundWorker worker;
        BackgroundJob job(worker);
        BackgroundJob queued(worker);
        job.start(untilCancelled, [&](int) { delivered = true; });
        queued.start([](const Cancellation &) { return 1; }, [&](int) { delivered = true; });
    }
    // The other order: the worker goes first and ends what nobody has cancelled.
    auto worker = std::make_unique<BackgroundWorker>();
    BackgroundJob left(*worker);
    std::atomic<bool> begun = false;
    left.start(
        [&begun](const Cancellation &cancellation) {
            begun = true;
            return untilCancelled(cancellation);
        },
        [&](int) { delivered = true; });
    while (!begun)
        std::this_thread::yield();
    worker.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(delivered);
}

} // namespace
} // namespace tolvo
