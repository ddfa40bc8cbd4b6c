// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficvolume.h"

#include <deque>

namespace corva
{

/// The rates of the last ten minutes, one a second, oldest first, in bytes per second.
class RateTrace
{
public:
    static constexpr std::size_t longest = 600;

    void add(const TrafficVolume &perSecond)
    {
        m_rates.push_back(perSecond);
        if (m_rates.size() > longest)
            m_rates.pop_front();
    }
    void clear() { m_rates.clear(); }
    const std::deque<TrafficVolume> &rates() const { return m_rates; }

private:
    std::deque<TrafficVolume> m_rates;
};

} // namespace corva
