// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/octets.h"

#include <QDateTime>
#include <QString>

namespace corva
{

enum class StampOrder { YearFirst, MonthFirst };

/// A service centre time stamp: 14 digits, and the time that they mean.
struct TimeStamp {
    QString digits;
    std::optional<QDateTime> time; ///< with its offset from UTC; nullopt when the digits are no time
};

/// Seven octets: year, month, day, hour, minute, second and zone; `order` is that of the digits it gives.
/// 3GPP TS 23.040 9.2.3.11.
TimeStamp readTimeStamp(OctetReader &reader, QLatin1StringView field, StampOrder order);

/// The local time that such digits tell, in 20yy and without their zone; invalid when they are no time.
QDateTime localTimeOf(QStringView digits, StampOrder order);

} // namespace corva
