// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <map>

namespace cardemu
{

/// The card's time. Every delay of the card runs on it, so that a test moves it on instead of waiting.
/// It runs with the computer's clock until it is moved. Lives in one thread.
class Scheduler : public QObject
{
public:
    using Task = std::function<void()>;
    using Milliseconds = std::chrono::milliseconds;

    explicit Scheduler(QObject *parent = nullptr);

    /// Runs `task` once, `delay` from now, from the event loop. Returns a number for cancel(), never 0.
    quint64 after(Milliseconds delay, Task task);
    void cancel(quint64 id);

    QDateTime now() const;
    /// Sets the wall clock; what waits goes on waiting as long as before.
    void setNow(const QDateTime &now);
    /// Moves the time on: what falls due in between runs before this returns, in order.
    void advance(Milliseconds step);

private:
    using Key = std::pair<Milliseconds, quint64>;

    Milliseconds elapsed() const;
    void runDue(Milliseconds until);
    void arm();

    QElapsedTimer m_running;
    Milliseconds m_moved{0};
    Milliseconds m_wallOffset{0};
    quint64 m_lastId = 0;
    std::map<Key, Task> m_tasks;
    QTimer m_timer;
};

/// One pending delay of its owner; starting it anew or destroying it drops the old one.
class CardTimer
{
public:
    explicit CardTimer(Scheduler &scheduler) : m_scheduler(scheduler) {}
    ~CardTimer() { stop(); }
    CardTimer(const CardTimer &) = delete;
    CardTimer &operator=(const CardTimer &) = delete;

    void start(Scheduler::Milliseconds delay, Scheduler::Task task);
    void stop();
    bool isActive() const { return m_id != 0; }

private:
    Scheduler &m_scheduler;
    quint64 m_id = 0;
};

} // namespace cardemu
