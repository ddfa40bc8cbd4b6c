// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/scheduler.h"

#include <QByteArray>

namespace cardemu
{

/// Finds "+++" in a data call: three of them with a second of quiet on both sides. ITU-T V.250 names the
/// sequence without defining it; this is what modems do.
class EscapeWatch
{
public:
    EscapeWatch(Scheduler &scheduler, Scheduler::Task escaped)
        : m_quiet(scheduler), m_after(scheduler), m_escaped(std::move(escaped))
    {
    }

    void feed(const QByteArray &bytes);
    void reset();

private:
    CardTimer m_quiet; ///< runs while the line has not been quiet for long enough
    CardTimer m_after;
    Scheduler::Task m_escaped;
    qsizetype m_pluses = 0;
};

} // namespace cardemu
