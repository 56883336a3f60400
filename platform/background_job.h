// SPDX-License-Identifier: MIT
// Work beside the keys: a job runs over values of its own in another thread, and its answer comes back to the
// thread of the window. Needs an event loop there, but no window.
#pragma once

#include <QObject>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace tolvo {

/// Whether anybody still waits for a job. Copies speak of the same job.
class Cancellation {
  public:
    /// A long job asks now and then and returns anything if this is true.
    [[nodiscard]] bool cancelled() const { return m_cancelled->load(std::memory_order_relaxed); }
    void cancel() { m_cancelled->store(true, std::memory_order_relaxed); }

  private:
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};

/// One thread for the jobs of a run, made at the first of them; they run one after another. Belongs to the
/// thread that makes it.
class BackgroundWorker {
  public:
    enum class Thread {
        Own,
        None ///< a job runs inside the call that starts it, so that a test need not wait
    };

    explicit BackgroundWorker(Thread thread = Thread::Own) : m_kind(thread) {}
    /// Cancels what is left and waits for the job that runs.
    ~BackgroundWorker();
    BackgroundWorker(const BackgroundWorker &) = delete;
    BackgroundWorker &operator=(const BackgroundWorker &) = delete;

    /// Runs `work` in the thread, then what it returns in the thread of the worker. Once cancelled, neither
    /// of the two begins. Work that throws has no answer.
    using Delivery = std::function<void()>;
    void run(const Cancellation &cancellation, std::function<Delivery()> work);

  private:
    struct Task {
        Cancellation cancellation;
        std::function<Delivery()> work;
    };
    struct Answer {
        Cancellation cancellation;
        Delivery deliver;
    };
    /// Where a wake-up call of the other thread comes in; takes those under way with it when it goes.
    struct Post : QObject {
        explicit Post(BackgroundWorker &owner) : worker(owner) {}
        void customEvent(QEvent *) override { worker.deliver(); }
        BackgroundWorker &worker;
    };

    [[nodiscard]] std::optional<Task> nextTask();
    void work();
    void deliver();

    const Thread m_kind;
    Post m_post{*this};
    std::mutex m_mutex;
    std::condition_variable m_changed;
    // Under the mutex:
    std::deque<Task> m_tasks;
    std::deque<Answer> m_answers;
    Cancellation m_running; ///< of the task that is at work
    bool m_ending = false;
    std::thread m_thread; ///< the owner's thread alone touches it
};

/// One job at a time: starting anew cancels the job before. The owner cancels when what the job looks at has
/// changed; from then on no answer comes.
///   m_job.start([text](const Cancellation &) { return marksOf(text); },
///               [this](const Marks &marks) { show(marks); });
///   connect(box, &QPlainTextEdit::textChanged, this, [this] { m_job.cancel(); });
class BackgroundJob {
  public:
    explicit BackgroundJob(BackgroundWorker &worker) : m_worker(worker) {}
    ~BackgroundJob() { cancel(); }
    BackgroundJob(const BackgroundJob &) = delete;
    BackgroundJob &operator=(const BackgroundJob &) = delete;

    /// `work` is called with a Cancellation in the other thread and must hold all that it needs by value.
    /// `deliver` is called with its answer in this thread.
    template <class Work, class Deliver>
    void start(Work work, Deliver deliver) {
        cancel();
        m_cancellation = Cancellation();
        m_worker.run(m_cancellation, [work = std::move(work), deliver = std::move(deliver),
                                      cancellation = m_cancellation]() mutable {
            return BackgroundWorker::Delivery(
                [answer = work(cancellation), deliver = std::move(deliver)] { deliver(answer); });
        });
    }
    void cancel() { m_cancellation.cancel(); }

  private:
    BackgroundWorker &m_worker;
    Cancellation m_cancellation;
};

} // namespace tolvo
