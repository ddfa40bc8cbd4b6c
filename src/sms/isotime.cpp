// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/isotime.h"

#include <array>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int secondsOfMinute = 60;
constexpr int minutesOfHour = 60;
constexpr QStringView pattern = u"0000-00-00T00:00:00"; ///< with a digit for each 0
constexpr qsizetype millisecondsLength = 4;             ///< ".789"
constexpr qsizetype offsetLength = 6;                   ///< "+02:00"

void setDigits(QString &text, qsizetype place, int digits, int number)
{
    for (qsizetype i = place + digits - 1; i >= place; --i, number /= 10)
        text[i] = QChar(u'0' + number % 10);
}

/// -1 unless all are digits.
int digitsAt(QStringView text, qsizetype place, int digits)
{
    int number = 0;
    for (const QChar c : text.sliced(place, digits)) {
        if (c < u'0' || c > u'9')
            return -1;
        number = number * 10 + (c.unicode() - u'0');
    }
    return number;
}

bool hasPattern(QStringView text)
{
    if (text.size() < pattern.size() + offsetLength)
        return false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const bool isDigit = text.at(i) >= u'0' && text.at(i) <= u'9';
        if (pattern.at(i) == u'0' ? !isDigit : text.at(i) != pattern.at(i))
            return false;
    }
    return true;
}

/// Invalid for what has not exactly the form that `isoText` makes.
QDateTime fromOwnForm(QStringView text)
{
    if (!hasPattern(text))
        return {};
    const bool hasMilliseconds = text.at(pattern.size()) == u'.';
    const qsizetype zone = pattern.size() + (hasMilliseconds ? millisecondsLength : 0);
    if (text.size() != zone + offsetLength || text.at(zone + 3) != u':')
        return {};
    const QChar sign = text.at(zone);
    const int hours = digitsAt(text, zone + 1, 2);
    const int minutes = digitsAt(text, zone + 4, 2);
    const int milliseconds = hasMilliseconds ? digitsAt(text, pattern.size() + 1, 3) : 0;
    if ((sign != u'+' && sign != u'-') || hours < 0 || minutes < 0 || milliseconds < 0)
        return {};
    const int offset = (hours * minutesOfHour + minutes) * secondsOfMinute;
    const QDate date(digitsAt(text, 0, 4), digitsAt(text, 5, 2), digitsAt(text, 8, 2));
    const QTime time(digitsAt(text, 11, 2), digitsAt(text, 14, 2), digitsAt(text, 17, 2), milliseconds);
    if (!date.isValid() || !time.isValid())
        return {};
    return {date, time, Qt::OffsetFromUTC, sign == u'-' ? -offset : offset};
}

} // namespace

QString isoText(const QDateTime &time)
{
    constexpr int lastYear = 9999;
    if (!time.isValid())
        return {};
    const int offset = time.offsetFromUtc();
    // Long ago offsets had seconds.
    if (offset % secondsOfMinute != 0)
        return isoText(time.toOffsetFromUtc(0));
    const QDate date = time.date();
    const QTime clock = time.time();
    if (date.year() < 0 || date.year() > lastYear)
        return time.toOffsetFromUtc(offset).toString(Qt::ISODateWithMs);
    QString text = pattern.toString();
    setDigits(text, 0, 4, date.year());
    setDigits(text, 5, 2, date.month());
    setDigits(text, 8, 2, date.day());
    setDigits(text, 11, 2, clock.hour());
    setDigits(text, 14, 2, clock.minute());
    setDigits(text, 17, 2, clock.second());
    if (clock.msec() != 0) {
        text += ".000"_L1;
        setDigits(text, text.size() - 3, 3, clock.msec());
    }
    text += offset < 0 ? "-00:00"_L1 : "+00:00"_L1;
    const int minutes = std::abs(offset) / secondsOfMinute;
    setDigits(text, text.size() - 5, 2, minutes / minutesOfHour);
    setDigits(text, text.size() - 2, 2, minutes % minutesOfHour);
    return text;
}

QDateTime fromIsoText(QStringView text)
{
    const QDateTime own = fromOwnForm(text);
    return own.isValid() ? own : QDateTime::fromString(text.toString(), Qt::ISODateWithMs);
}

} // namespace corva
