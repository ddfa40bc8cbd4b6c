// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>

namespace corva
{

/// From one billing day to the day before the next.
struct BillingPeriod {
    QDate first;
    QDate last;
    int days() const { return int(first.daysTo(last)) + 1; }
    bool operator==(const BillingPeriod &) const = default;
};

/// The period that `day` lies in. In a month without the billing day (1 to 31, others are brought into that
/// range) its last day stands in.
BillingPeriod billingPeriodOf(QDate day, int billingDay);

} // namespace corva
