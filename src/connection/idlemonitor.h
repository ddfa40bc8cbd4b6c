// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>

namespace corva
{

/// Watches whether a link carries anything. It reads far more often than the limit is long, so that a link
/// counts as idle when the limit has passed since its last byte, and not up to twice as late.
class IdleMonitor : public QObject
{
    Q_OBJECT

public:
    /// Bytes carried so far, both ways; nullopt while nobody counts. What the two ends say to each other to
    /// keep the link (LCP's echoes) is no traffic: the kernel does not count it.
    using Counter = std::function<std::optional<quint64>()>;

    explicit IdleMonitor(QObject *parent = nullptr,
                         std::chrono::milliseconds readingPeriod = std::chrono::seconds(1));

    void setCounter(Counter counter) { m_counter = std::move(counter); }
    /// `sigIdle` comes when nothing was carried for `limit`, one reading period later at most.
    void launchAutoDisconnectMonitor(std::chrono::milliseconds limit);
    void stopAutoDisconnectMonitor();

Q_SIGNALS:
    /// Nothing was carried for as long as the limit. The watching has ended.
    void sigIdle();

private:
    void slotAutoDisconnectMonitor();
    void noteUse();

    Counter m_counter;
    QTimer m_timer;
    std::chrono::milliseconds m_limit{0};
    std::optional<quint64> m_last;
    QElapsedTimer m_sinceUse;
    QElapsedTimer m_sinceNoted; ///< since the log was told of traffic
};

} // namespace corva
