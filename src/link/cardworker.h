// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QFuture>
#include <QPromise>
#include <QThread>
#include <atomic>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <type_traits>

class SerialThread;

namespace corva
{

/// The one thread that runs card jobs, one after another, in the order in which they were asked for. While no
/// job runs it waits on the port, so that a report is seen when it comes.
class CardWorker : public QThread
{
    Q_OBJECT

public:
    explicit CardWorker(SerialThread &link);
    /// Stops the thread.
    ~CardWorker() override;

    /// Runs `job(link)` behind the jobs that wait; the future carries its value. A future of a job that was
    /// dropped by `stop` is cancelled. Any thread.
    template <typename Job> auto submit(Job job) -> QFuture<std::invoke_result_t<Job, SerialThread &>>
    {
        using Value = std::invoke_result_t<Job, SerialThread &>;
        auto promise = std::make_shared<QPromise<Value>>();
        promise->start();
        auto future = promise->future();
        enqueue({{}, [promise, job = std::move(job)](SerialThread &link) mutable {
                     if constexpr (std::is_void_v<Value>)
                         job(link);
                     else
                         promise->addResult(job(link));
                     promise->finish();
                 }});
        return future;
    }

    /// Runs `job` unless one with the same key still waits or runs: polls never queue up behind a slow card.
    /// Any thread.
    void submitOnce(const QByteArray &key, std::function<void(SerialThread &)> job);

    /// Called on the worker after every job and every drain; set before `start`.
    void setAfterEach(std::function<void(SerialThread &)> check) { m_afterEach = std::move(check); }

    /// Ends the loop: the running job sees its card fall silent, those that wait are dropped. Returns when
    /// the thread ended.
    void stop();

protected:
    void run() override;

private:
    struct Job {
        QByteArray key;
        std::function<void(SerialThread &)> work;
    };

    void enqueue(Job job);
    bool takeJob(Job &job);
    void waitForWork();

    SerialThread &m_link;
    std::function<void(SerialThread &)> m_afterEach;
    std::mutex m_mutex;
    std::deque<Job> m_jobs;
    QByteArray m_runningKey;
    std::atomic<bool> m_stop = false;
    int m_wake = -1; ///< becomes readable when a job was added
};

} // namespace corva
