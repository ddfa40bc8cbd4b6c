// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardworker.h"

#include "serialthread.h"

#include <algorithm>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace corva
{

CardWorker::CardWorker(SerialThread &link) : m_link(link), m_wake(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

CardWorker::~CardWorker()
{
    stop();
    ::close(m_wake);
}

void CardWorker::enqueue(Job job)
{
    {
        const std::scoped_lock lock(m_mutex);
        const bool isAskedFor =
            !job.key.isEmpty() &&
            (m_runningKey == job.key ||
             std::ranges::any_of(m_jobs, [&](const Job &other) { return other.key == job.key; }));
        if (m_stop || isAskedFor)
            return;
        m_jobs.push_back(std::move(job));
    }
    eventfd_write(m_wake, 1);
}

void CardWorker::submitOnce(const QByteArray &key, std::function<void(SerialThread &)> job)
{
    enqueue({key, std::move(job)});
}

void CardWorker::stop()
{
    std::deque<Job> dropped;
    {
        const std::scoped_lock lock(m_mutex);
        m_stop = true;
        dropped.swap(m_jobs);
    }
    m_link.requestStop();
    eventfd_write(m_wake, 1);
    wait();
}

bool CardWorker::takeJob(Job &job)
{
    const std::scoped_lock lock(m_mutex);
    m_runningKey.clear();
    if (m_jobs.empty() || m_stop)
        return false;
    job = std::move(m_jobs.front());
    m_jobs.pop_front();
    m_runningKey = job.key;
    return true;
}

void CardWorker::run()
{
    while (!m_stop) {
        Job job;
        if (takeJob(job))
            job.work(m_link);
        else
            waitForWork();
        if (m_afterEach && !m_stop)
            m_afterEach(m_link);
    }
}

/// Until a job is there or the card says something, which is then dispatched. What came with the end of the
/// last reply is dispatched at once.
void CardWorker::waitForWork()
{
    pollfd watched[] = {{m_wake, POLLIN, 0}, {m_link.isPortLost() ? -1 : m_link.descriptor(), POLLIN, 0}};
    if (poll(watched, 2, m_link.hasReadAhead() ? 0 : -1) < 0)
        return; // interrupted: the loop looks again
    eventfd_t count = 0;
    if (watched[0].revents)
        eventfd_read(m_wake, &count);
    if (watched[1].revents || m_link.hasReadAhead())
        m_link.purgeComData();
}

} // namespace corva
