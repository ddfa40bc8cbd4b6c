// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/linkmeter.h"

namespace corva
{

void LinkMeter::setTraffic(const LinkTraffic &traffic)
{
    if (m_traffic == traffic)
        return;
    m_traffic = traffic;
    Q_EMIT sigChanged(traffic);
}

} // namespace corva
