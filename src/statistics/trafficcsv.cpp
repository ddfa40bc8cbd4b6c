// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/trafficcsv.h"

#include "shell/csv.h"

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString iso(const QDateTime &time)
{
    return time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODate);
}

QStringList numbers(const TrafficVolumes &volumes)
{
    const TrafficVolume all = volumes.both();
    QStringList fields;
    for (const quint64 bytes : {all.received, all.sent, volumes.roaming.received, volumes.roaming.sent})
        fields += QString::number(bytes);
    return fields;
}

QStringList withVolumeColumns(const QStringList &before, const QStringList &behind = {})
{
    return before +
           QStringList{u"received_bytes"_s, u"sent_bytes"_s, u"roaming_received_bytes"_s,
                       u"roaming_sent_bytes"_s} +
           behind;
}

} // namespace

QByteArray historyCsv(const std::vector<HistoryRecord> &records)
{
    CsvTable table(withVolumeColumns({u"start"_s, u"end"_s, u"duration_seconds"_s, u"profile"_s},
                                     {u"roaming"_s, u"ended"_s}));
    for (const HistoryRecord &record : records)
        table.addRow(QStringList{iso(record.start), iso(record.end), QString::number(record.duration.count()),
                                 record.profileName} +
                     numbers(record.volumes) + QStringList{record.isRoaming ? u"1"_s : u"0"_s, record.ended});
    return table.bytes();
}

QByteArray totalsCsv(const TrafficTotals &totals)
{
    CsvTable table(withVolumeColumns({u"date"_s}));
    for (const auto &[month, volumes] : totals.foldedMonths())
        table.addRow(QStringList{month.toString(u"yyyy-MM"_s)} + numbers(volumes));
    for (const auto &[day, volumes] : totals.days())
        table.addRow(QStringList{day.toString(Qt::ISODate)} + numbers(volumes));
    return table.bytes();
}

} // namespace corva
