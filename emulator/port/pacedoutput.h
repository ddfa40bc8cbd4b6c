// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/scheduler.h"

#include <QByteArray>
#include <deque>

namespace cardemu
{

/// Bytes on their way out: in order, with pauses between them, no faster than the pace.
class PacedOutput
{
public:
    using Sink = std::function<void(const QByteArray &)>;

    PacedOutput(Scheduler &scheduler, Sink sink) : m_sink(std::move(sink)), m_timer(scheduler) {}

    void add(const QByteArray &bytes, std::chrono::milliseconds pauseBefore = {});
    void clear();
    /// 0: without limit.
    void setBytesPerSecond(int pace) { m_pace = pace; }
    qsizetype pending() const { return m_pending; }

private:
    struct Segment {
        std::chrono::milliseconds pause;
        QByteArray bytes;
    };

    void pump();
    void sendSlice(Segment &segment);

    Sink m_sink;
    CardTimer m_timer;
    std::deque<Segment> m_queue;
    qsizetype m_pending = 0;
    int m_pace = 0;
};

} // namespace cardemu
