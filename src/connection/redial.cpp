// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/redial.h"

#include "shell/logging.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

bool isWorthAnotherDial(ConnectionEnd end)
{
    using enum ConnectionEnd;
    constexpr ConnectionEnd ends[] = {NoCarrier, Busy, TimeOut, DiallerFailed, ByPeer, LinkLost, CardGone};
    return std::ranges::find(ends, end) != std::end(ends);
}

Redial::Redial(QObject *parent) : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &Redial::slotAutoRedial);
}

void Redial::autoRedialNetwork(const Row &row)
{
    stop();
    if (row.times < 1)
        return;
    m_row = row;
    m_number = 1;
    qCDebug(lcConnection).noquote()
        << logTime() + u"*****Redial times is %1, after every %2 sec, start sec is %3*****"_s.arg(row.times)
                           .arg(row.afterSec.count())
                           .arg(row.startSec.count());
    m_timer.start(row.startSec);
}

bool Redial::next()
{
    if (m_number == 0 || m_number >= m_row.times) {
        stop();
        return false;
    }
    ++m_number;
    m_timer.start(m_row.afterSec);
    return true;
}

void Redial::stop()
{
    m_timer.stop();
    m_number = 0;
}

void Redial::slotAutoRedial()
{
    Q_EMIT sigDial();
}

} // namespace corva
