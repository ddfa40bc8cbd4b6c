// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/billingperiod.h"

#include <algorithm>

namespace corva
{

namespace
{

QDate billingDayIn(QDate month, int billingDay)
{
    return QDate(month.year(), month.month(), std::clamp(billingDay, 1, month.daysInMonth()));
}

} // namespace

BillingPeriod billingPeriodOf(QDate day, int billingDay)
{
    const QDate month(day.year(), day.month(), 1);
    const QDate inThisMonth = billingDayIn(month, billingDay);
    const QDate first = inThisMonth <= day ? inThisMonth : billingDayIn(month.addMonths(-1), billingDay);
    const QDate nextMonth = QDate(first.year(), first.month(), 1).addMonths(1);
    return {first, billingDayIn(nextMonth, billingDay).addDays(-1)};
}

} // namespace corva
