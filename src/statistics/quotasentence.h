// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/billingperiod.h"
#include "statistics/quota.h"

namespace corva
{

/// How much of an allowance is used, or that it is used up, for the person who is warned of it.
QString quotaSentence(const AllowanceUse &use, const BillingPeriod &period);

} // namespace corva
