// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficvolume.h"

#include <QDateTime>
#include <QLatin1StringView>
#include <QString>
#include <chrono>

namespace corva
{

/// The words for how a connection ended, as they stand in the history.
namespace historyend
{
using namespace Qt::StringLiterals;
inline constexpr QLatin1StringView Person = "person"_L1;         ///< Disconnect was pressed
inline constexpr QLatin1StringView Peer = "network"_L1;          ///< the network ended it
inline constexpr QLatin1StringView LinkLost = "link-lost"_L1;    ///< no answer to the link's echoes
inline constexpr QLatin1StringView Dialler = "dialler"_L1;       ///< wvdial or pppd ended by itself
inline constexpr QLatin1StringView CardGone = "card-gone"_L1;    ///< the card was pulled out
inline constexpr QLatin1StringView Idle = "idle"_L1;             ///< nothing was carried
inline constexpr QLatin1StringView Quota = "quota"_L1;           ///< the month's volume was used up
inline constexpr QLatin1StringView Program = "program"_L1;       ///< the program was ended
inline constexpr QLatin1StringView Unexpected = "unexpected"_L1; ///< the program or the machine stopped
} // namespace historyend

/// How such a word is said below the heading "Ended"; another word is "Not known".
QString historyEndText(const QString &word);

/// One connection that is over.
struct HistoryRecord {
    QString id; ///< its own, made when the link came up
    QDateTime start;
    QDateTime end;
    std::chrono::seconds duration{0}; ///< by a clock that nobody sets
    QString profileName;
    TrafficVolumes volumes;
    bool isRoaming = false; ///< at least for a part of the time
    QString ended;          ///< a word of `historyend`
    bool operator==(const HistoryRecord &) const = default;
};

} // namespace corva
