// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <chrono>

namespace corva
{

/// "1.25 GB": three digits that count, in decimal units, as operators bill, in the person's locale.
QString volumeText(quint64 bytes);
/// "1.25 MB/s".
QString rateText(quint64 bytesPerSecond);
/// "1:02:03", hours as many as they are.
QString durationText(std::chrono::seconds duration);
/// "31 May".
QString dayText(QDate day);
/// "May 2024".
QString monthText(QDate month);
/// As people say it, seen from `now`: "12:34", "Yesterday, 12:34", "3 May, 12:34", with the year when it is
/// another.
QString whenText(const QDateTime &time, const QDateTime &now);

} // namespace corva
