// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/idlemonitor.h"

#include "shell/logging.h"

using namespace Qt::StringLiterals;

namespace corva
{

IdleMonitor::IdleMonitor(QObject *parent) : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &IdleMonitor::slotAutoDisconnectMonitor);
}

void IdleMonitor::launchAutoDisconnectMonitor(std::chrono::milliseconds period)
{
    m_last = m_counter ? m_counter() : std::nullopt;
    m_timer.start(period);
}

void IdleMonitor::stopAutoDisconnectMonitor()
{
    m_timer.stop();
}

/// Without a count there is nothing to judge by, and the link stays.
void IdleMonitor::slotAutoDisconnectMonitor()
{
    const std::optional<quint64> now = m_counter ? m_counter() : std::nullopt;
    const bool isIdle = now && m_last && *now == *m_last;
    m_last = now;
    if (isIdle) {
        stopAutoDisconnectMonitor();
        Q_EMIT sigIdle();
    } else if (now) {
        qCDebug(lcConnection).noquote()
            << logTime() + u"There are new data transported recently. Auto Disconnect will "
                           u"not close your internet link."_s;
    }
}

} // namespace corva
