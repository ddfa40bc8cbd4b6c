// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/idlemonitor.h"

#include "shell/logging.h"

using namespace Qt::StringLiterals;

namespace corva
{

IdleMonitor::IdleMonitor(QObject *parent, std::chrono::milliseconds readingPeriod) : QObject(parent)
{
    m_timer.setInterval(readingPeriod);
    connect(&m_timer, &QTimer::timeout, this, &IdleMonitor::slotAutoDisconnectMonitor);
}

void IdleMonitor::launchAutoDisconnectMonitor(std::chrono::milliseconds limit)
{
    m_limit = limit;
    m_last = m_counter ? m_counter() : std::nullopt;
    m_sinceUse.start();
    m_sinceNoted.start();
    m_timer.start();
}

void IdleMonitor::stopAutoDisconnectMonitor()
{
    m_timer.stop();
}

/// Without a count there is nothing to judge by, and the link stays.
void IdleMonitor::slotAutoDisconnectMonitor()
{
    const std::optional<quint64> now = m_counter ? m_counter() : std::nullopt;
    const bool isUsed = !now || now != m_last;
    m_last = now;
    if (isUsed) {
        noteUse();
    } else if (m_sinceUse.hasExpired(m_limit.count() - 1)) { // at the limit, not behind it
        stopAutoDisconnectMonitor();
        Q_EMIT sigIdle();
    }
}

void IdleMonitor::noteUse()
{
    m_sinceUse.start();
    if (!m_last || !m_sinceNoted.hasExpired(m_limit.count()))
        return;
    m_sinceNoted.start();
    qCDebug(lcConnection).noquote() << logTime() +
                                           u"There are new data transported recently. Auto Disconnect will "
                                           u"not close your internet link."_s;
}

} // namespace corva
