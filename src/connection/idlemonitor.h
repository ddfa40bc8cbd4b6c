// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <optional>

namespace corva
{

/// Watches whether a link carries anything: compares the bytes between two checks.
class IdleMonitor : public QObject
{
    Q_OBJECT

public:
    /// Bytes carried so far, both ways; nullopt while nobody counts.
    using Counter = std::function<std::optional<quint64>()>;

    explicit IdleMonitor(QObject *parent = nullptr);

    void setCounter(Counter counter) { m_counter = std::move(counter); }
    void launchAutoDisconnectMonitor(std::chrono::milliseconds period);
    void stopAutoDisconnectMonitor();

Q_SIGNALS:
    /// Nothing was carried between two checks. The watching has ended.
    void sigIdle();

private:
    void slotAutoDisconnectMonitor();

    Counter m_counter;
    QTimer m_timer;
    std::optional<quint64> m_last;
};

} // namespace corva
