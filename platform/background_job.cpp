// SPDX-License-Identifier: MIT
#include "platform/background_job.h"

#include <QCoreApplication>
#include <QEvent>
#include <utility>

namespace tolvo {

namespace {

BackgroundWorker::Delivery answerOf(const std::function<BackgroundWorker::Delivery()> &work) {
    try {
        return work();
    } catch (...) { // the window goes without the answer
        return nullptr;
    }
}

} // namespace

BackgroundWorker::~BackgroundWorker() {
    {
        const std::lock_guard lock(m_mutex);
        m_ending = true;
        m_tasks.clear();
        m_running.cancel();
    }
    m_changed.notify_one();
    if (m_thread.joinable())
        m_thread.join();
}

void BackgroundWorker::run(const Cancellation &cancellation, std::function<Delivery()> work) {
    if (m_kind == Thread::None) {
        if (const Delivery deliver = answerOf(work))
            deliver();
        return;
    }
    {
        const std::lock_guard lock(m_mutex);
        m_tasks.push_back({cancellation, std::move(work)});
    }
    m_changed.notify_one();
    if (!m_thread.joinable())
        m_thread = std::thread([this] { this->work(); });
}

std::optional<BackgroundWorker::Task> BackgroundWorker::nextTask() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_ending || !m_tasks.empty(); });
    if (m_ending)
        return std::nullopt;
    Task task = std::move(m_tasks.front());
    m_tasks.pop_front();
    m_running = task.cancellation;
    return task;
}

void BackgroundWorker::work() {
    while (const std::optional<Task> task = nextTask()) {
        Delivery answer = task->cancellation.cancelled() ? nullptr : answerOf(task->work);
        if (!answer)
            continue;
        {
            // The lock, not the event queue, hands the answer over from thread to thread.
            const std::lock_guard lock(m_mutex);
            m_answers.push_back({task->cancellation, std::move(answer)});
        }
        QCoreApplication::postEvent(&m_post, new QEvent(QEvent::User));
    }
}

/// Delivers one answer: each has a call of its own, so that one that fails keeps none of the others back.
void BackgroundWorker::deliver() {
    std::unique_lock lock(m_mutex);
    const Answer answer = std::move(m_answers.front());
    m_answers.pop_front();
    lock.unlock();
    if (!answer.cancellation.cancelled())
        answer.deliver();
}

} // namespace tolvo
