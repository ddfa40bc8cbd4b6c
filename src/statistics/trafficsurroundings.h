// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficsettings.h"

#include <QDateTime>
#include <QString>
#include <chrono>
#include <functional>

namespace corva
{

/// What the counting leans on; a test puts its own in place.
struct TrafficSurroundings {
    QString dataFolder; ///< of the files
    QString countersFolder = QStringLiteral("/sys/class/net");
    QString bootIdFile = QStringLiteral("/proc/sys/kernel/random/boot_id");
    std::function<QDateTime()> now;                    ///< local time, which may jump
    std::function<std::chrono::milliseconds()> uptime; ///< never jumps; runs on while the machine sleeps
    std::function<TrafficSettings()> settings;         ///< asked at each use

    /// Those of the program: `basePath` + "/Data", the system's clocks, `cmcfg`.
    static TrafficSurroundings ofProgram();
};

} // namespace corva
