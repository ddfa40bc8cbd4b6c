// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/trafficsurroundings.h"

#include "shell/globals.h"

#include <ctime>

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace corva
{

namespace
{

/// Since the machine was started, its sleep included.
milliseconds bootTime()
{
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return duration_cast<milliseconds>(seconds(time.tv_sec) + nanoseconds(time.tv_nsec));
}

} // namespace

TrafficSurroundings TrafficSurroundings::ofProgram()
{
    TrafficSurroundings surroundings;
    surroundings.dataFolder = basePath + u"/Data"_s;
    surroundings.now = [] { return QDateTime::currentDateTime(); };
    surroundings.uptime = bootTime;
    surroundings.settings = readTrafficSettings;
    return surroundings;
}

} // namespace corva
