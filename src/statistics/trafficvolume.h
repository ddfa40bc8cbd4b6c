// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <limits>

namespace corva
{

/// Bytes both ways. Sums stay at the largest number instead of beginning anew: what is read back from a file
/// may be anything.
struct TrafficVolume {
    quint64 received = 0;
    quint64 sent = 0;

    quint64 total() const { return sum(received, sent); }
    TrafficVolume &operator+=(const TrafficVolume &other)
    {
        received = sum(received, other.received);
        sent = sum(sent, other.sent);
        return *this;
    }
    bool operator==(const TrafficVolume &) const = default;

private:
    static quint64 sum(quint64 a, quint64 b)
    {
        constexpr quint64 most = std::numeric_limits<quint64>::max();
        return a > most - b ? most : a + b;
    }
};

/// The same, with what was carried in foreign networks apart.
struct TrafficVolumes {
    TrafficVolume home;
    TrafficVolume roaming;

    TrafficVolume both() const { return TrafficVolume(home) += roaming; }
    quint64 total() const { return both().total(); }
    TrafficVolume &of(bool isRoaming) { return isRoaming ? roaming : home; }
    TrafficVolumes &operator+=(const TrafficVolumes &other)
    {
        home += other.home;
        roaming += other.roaming;
        return *this;
    }
    bool operator==(const TrafficVolumes &) const = default;
};

} // namespace corva
