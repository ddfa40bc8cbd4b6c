// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/quotasentence.h"

#include "statistics/trafficservice.h"
#include "statistics/traffictexts.h"

#include <QLocale>

namespace corva
{

QString quotaSentence(const AllowanceUse &use, const BillingPeriod &period)
{
    const QString quota = volumeText(use.quota);
    const QString until = dayText(period.last);
    const bool isMain = use.allowance == Allowance::Main;
    if (use.isUsedUp())
        return isMain ? TrafficService::tr("Your volume of %1 until %2 is used up.").arg(quota, until)
                      : TrafficService::tr("Your volume of %1 for roaming until %2 is used up.")
                            .arg(quota, until);
    const QString share = QLocale().toString(use.percent());
    return isMain ? TrafficService::tr("%1 % of your volume of %2 until %3 are used up.")
                        .arg(share, quota, until)
                  : TrafficService::tr("%1 % of your volume of %2 for roaming until %3 are used up.")
                        .arg(share, quota, until);
}

} // namespace corva
