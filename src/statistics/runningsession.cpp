// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/runningsession.h"

namespace corva
{

HistoryRecord recordOf(const RunningSession &session)
{
    using namespace std::chrono;
    constexpr milliseconds drift = minutes(1); // of a clock that is only kept right
    const milliseconds elapsed(session.start.msecsTo(session.last));
    const bool wasSet = abs(elapsed - session.duration) > drift;

    HistoryRecord record;
    record.id = session.id;
    record.start = wasSet ? session.last.addMSecs(-session.duration.count()) : session.start;
    record.end = session.last;
    record.duration = duration_cast<seconds>(session.duration);
    record.profileName = session.profileName;
    record.volumes = session.carried.total();
    record.isRoaming = session.hasRoamed;
    record.ended = session.ended;
    return record;
}

} // namespace corva
