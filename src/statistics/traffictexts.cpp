// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/traffictexts.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTime>
#include <algorithm>
#include <limits>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("Traffic", source);
}

} // namespace

QString volumeText(quint64 bytes)
{
    bytes = std::min(bytes, quint64(std::numeric_limits<qint64>::max()));
    quint64 step = 1;
    while (bytes / step >= 1000)
        step *= 10;
    // Rounded here, so that 999 999 bytes are 1.00 MB and not 1000 kB.
    const quint64 rounded = (bytes + step / 2) / step * step;
    quint64 thousandths = rounded;
    while (thousandths >= 1'000'000)
        thousandths /= 1000;
    const int decimals = thousandths < 10'000 ? 2 : thousandths < 100'000 ? 1 : 0;
    // The unit stays on the line of its number.
    return QLocale()
        .formattedDataSize(qint64(rounded), decimals, QLocale::DataSizeSIFormat)
        .replace(u' ', QChar::Nbsp);
}

QString rateText(quint64 bytesPerSecond)
{
    return text(QT_TRANSLATE_NOOP("Traffic", "%1/s")).arg(volumeText(bytesPerSecond));
}

QString durationText(std::chrono::seconds duration)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const qint64 all = duration.count();
    return locale.toString(all / 3600) + locale.toString(QTime(0, 0).addSecs(int(all % 3600)), u":mm:ss");
}

QString dayText(QDate day)
{
    //: A day without its year, as QDate::toString takes it
    return QLocale().toString(day, text(QT_TRANSLATE_NOOP("Traffic", "d MMMM")));
}

QString monthText(QDate month)
{
    //: A month with its year, as QDate::toString takes it
    return QLocale().toString(month, text(QT_TRANSLATE_NOOP("Traffic", "MMMM yyyy")));
}

QString whenText(const QDateTime &time, const QDateTime &now)
{
    const QDateTime local = time.toLocalTime();
    QString clock = QLocale().toString(local.time(), QLocale::ShortFormat);
    const qint64 daysAgo = local.date().daysTo(now.date());
    if (daysAgo == 0)
        return clock;
    if (daysAgo == 1)
        return text(QT_TRANSLATE_NOOP("Traffic", "Yesterday, %1")).arg(clock);
    if (local.date().year() == now.date().year())
        return text(QT_TRANSLATE_NOOP("Traffic", "%1, %2")).arg(dayText(local.date()), clock);
    return QLocale().toString(local, QLocale::ShortFormat);
}

} // namespace corva
