// SPDX-License-Identifier: GPL-3.0-or-later
#include "card/scheduler.h"

#include <algorithm>
#include <utility>

namespace cardemu
{

using std::chrono::milliseconds;

Scheduler::Scheduler(QObject *parent) : QObject(parent)
{
    m_running.start();
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        runDue(elapsed());
        arm();
    });
}

quint64 Scheduler::after(milliseconds delay, Task task)
{
    const quint64 id = ++m_lastId;
    m_tasks.emplace(Key{elapsed() + std::max(delay, milliseconds(0)), id}, std::move(task));
    arm();
    return id;
}

void Scheduler::cancel(quint64 id)
{
    std::erase_if(m_tasks, [id](const auto &task) { return task.first.second == id; });
}

QDateTime Scheduler::now() const
{
    return QDateTime::currentDateTimeUtc().addMSecs((m_moved + m_wallOffset).count());
}

void Scheduler::setNow(const QDateTime &now)
{
    m_wallOffset += milliseconds(this->now().msecsTo(now));
}

void Scheduler::advance(milliseconds step)
{
    const milliseconds goal = elapsed() + std::max(step, milliseconds(0));
    runDue(goal);
    m_moved += std::max(goal - elapsed(), milliseconds(0));
    arm();
}

milliseconds Scheduler::elapsed() const
{
    return milliseconds(m_running.elapsed()) + m_moved;
}

// A task may start or cancel others, so the first one is looked up anew each time; the time is moved to each
// task's own moment, so that what it starts counts from there.
void Scheduler::runDue(milliseconds until)
{
    while (!m_tasks.empty() && m_tasks.begin()->first.first <= until) {
        auto node = m_tasks.extract(m_tasks.begin());
        m_moved += std::max(node.key().first - elapsed(), milliseconds(0));
        node.mapped()();
    }
}

void Scheduler::arm()
{
    if (m_tasks.empty()) {
        m_timer.stop();
        return;
    }
    m_timer.start(std::max(m_tasks.begin()->first.first - elapsed(), milliseconds(0)));
}

void CardTimer::start(milliseconds delay, Scheduler::Task task)
{
    stop();
    m_id = m_scheduler.after(delay, [this, task = std::move(task)] {
        m_id = 0;
        // The task may destroy this timer and with it the function that runs: work on a copy.
        const auto running = task;
        running();
    });
}

void CardTimer::stop()
{
    if (m_id != 0)
        m_scheduler.cancel(std::exchange(m_id, 0));
}

} // namespace cardemu
