// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/trafficservice.h"

namespace corva
{

/// "1.2 GB received, 80 MB sent", with what was carried while roaming where there was any.
QString volumesSentence(const TrafficVolumes &volumes);
/// "4.2 GB of 10 GB used (42 %)", or of the volume for roaming.
QString allowanceSentence(const AllowanceUse &use);
/// What the period will come to, or why that cannot be said yet.
QString forecastSentence(const PeriodUse &use, const TrafficSettings &settings);

} // namespace corva
