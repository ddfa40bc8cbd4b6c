// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/timestamp.h"

#include <algorithm>
#include <array>

namespace corva
{

namespace
{

constexpr int century = 2000;
constexpr qsizetype stampSize = 7;
/// The sign bit of the zone lies in its tens, which come first on the air.
constexpr quint8 zoneIsWest = 0x08;
constexpr int secondsInZoneUnit = 15 * 60;
/// 14 hours, as far as any clock is from UTC.
constexpr int highestZone = 56;

/// Two swapped semi-octets as a number; -1 when one is no digit.
int pairOf(quint8 octet)
{
    const int tens = octet & 0x0f;
    const int units = octet >> 4;
    return tens > 9 || units > 9 ? -1 : tens * 10 + units;
}

/// Seconds east of UTC; UTC itself for what is no zone.
int offsetOf(quint8 octet)
{
    const int quarters = pairOf(octet & ~zoneIsWest);
    if (quarters < 0 || quarters > highestZone)
        return 0;
    return (octet & zoneIsWest ? -quarters : quarters) * secondsInZoneUnit;
}

int pairOf(QStringView digits)
{
    const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
    return digits.size() == 2 && std::ranges::all_of(digits, isDigit) ? digits.toInt() : -1;
}

/// Year, month, day, hour, minute, second.
using Fields = std::array<int, 6>;

QDate dateOf(const Fields &fields)
{
    return {century + fields[0], fields[1], fields[2]};
}

QTime timeOf(const Fields &fields)
{
    return {fields[3], fields[4], fields[5]};
}

std::optional<QDateTime> zonedTimeOf(OctetView octets)
{
    Fields fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = pairOf(octets[i]);
        if (fields[i] < 0)
            return std::nullopt;
    }
    const QDate date = dateOf(fields);
    const QTime time = timeOf(fields);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    return QDateTime(date, time, Qt::OffsetFromUTC, offsetOf(octets.back()));
}

/// The octet's place among the digits.
std::size_t placeOf(std::size_t octet, StampOrder order)
{
    constexpr std::array<std::size_t, 3> monthFirst = {2, 0, 1};
    return order == StampOrder::MonthFirst && octet < monthFirst.size() ? monthFirst[octet] : octet;
}

} // namespace

TimeStamp readTimeStamp(OctetReader &reader, QLatin1StringView field, StampOrder order)
{
    const OctetView octets = reader.octets(field, stampSize);
    if (octets.empty())
        return {};
    QString digits(2 * stampSize, Qt::Uninitialized);
    for (std::size_t i = 0; i < octets.size(); ++i) {
        QChar *pair = digits.data() + 2 * placeOf(i, order);
        pair[0] = QLatin1Char(hexDigit(octets[i] & 0x0f));
        pair[1] = QLatin1Char(hexDigit(octets[i] >> 4));
    }
    return {digits, zonedTimeOf(octets)};
}

QDateTime localTimeOf(QStringView digits, StampOrder order)
{
    Fields fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) {
        fields[i] = pairOf(digits.mid(2 * qsizetype(placeOf(i, order)), 2));
        if (fields[i] < 0)
            return {};
    }
    const QDate date = dateOf(fields);
    const QTime time = timeOf(fields);
    return date.isValid() && time.isValid() ? QDateTime(date, time) : QDateTime();
}

} // namespace corva
