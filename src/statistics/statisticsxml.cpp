// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/statisticsxml.h"

#include "shell/configxml.h"

#include <QSet>
#include <QXmlStreamReader>
#include <algorithm>
#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using namespace std::chrono;

namespace corva
{

namespace
{

constexpr QLatin1StringView formatVersion = "1"_L1;
constexpr qsizetype longestText = 200; ///< of a name; longer ones were not written by this program
constexpr quint64 largestVolume = 10'000'000'000'000'000; ///< bytes: 30 Gbit/s through a month
constexpr milliseconds longestDuration = hours(24 * 366 * 10);

/// The attributes of one element, each known or not.
class Row
{
public:
    Row(QStringView element, const QXmlStreamAttributes &attributes)
        : name(element.toString()), m_attributes(attributes)
    {
    }

    QString text(QLatin1StringView key) const { return m_attributes.value(key).left(longestText).toString(); }
    bool isOn(QLatin1StringView key) const { return m_attributes.value(key) == "1"_L1; }

    std::optional<quint64> number(QLatin1StringView key) const
    {
        return parseCounter(m_attributes.value(key).toUtf8());
    }

    std::optional<QDate> day(QLatin1StringView key) const
    {
        const QDate date = QDate::fromString(m_attributes.value(key).toString(), Qt::ISODate);
        return date.isValid() ? std::optional(date) : std::nullopt;
    }

    std::optional<QDateTime> time(QLatin1StringView key) const
    {
        const QDateTime time = QDateTime::fromString(m_attributes.value(key).toString(), Qt::ISODateWithMs);
        return time.isValid() ? std::optional(time) : std::nullopt;
    }

    std::optional<milliseconds> duration(QLatin1StringView key) const
    {
        const auto count = number(key);
        return count && *count <= quint64(longestDuration.count()) ? std::optional(milliseconds(*count))
                                                                   : std::nullopt;
    }

    std::optional<TrafficVolumes> volumes() const
    {
        const auto received = volume("received"_L1);
        const auto sent = volume("sent"_L1);
        const auto roamingReceived = volume("roaming-received"_L1);
        const auto roamingSent = volume("roaming-sent"_L1);
        if (!received || !sent || !roamingReceived || !roamingSent)
            return std::nullopt;
        return TrafficVolumes{{*received, *sent}, {*roamingReceived, *roamingSent}};
    }

    const QString name;

private:
    /// Unknown for what no link can have carried.
    std::optional<quint64> volume(QLatin1StringView key) const
    {
        const auto bytes = number(key);
        return bytes && *bytes <= largestVolume ? bytes : std::nullopt;
    }

    const QXmlStreamAttributes m_attributes;
};

/// False for a row that makes no sense.
using TakeRow = std::function<bool(const Row &)>;

/// Hands over the root and each element below it. Returns the first thing that was wrong.
QString readRows(const QByteArray &bytes, QLatin1StringView root, const TakeRow &takeRoot,
                 const TakeRow &takeRow)
{
    QXmlStreamReader reader(bytes);
    QString problem;
    const auto note = [&](const QString &what) {
        if (problem.isEmpty())
            problem = u"line %1: %2"_s.arg(reader.lineNumber()).arg(what);
    };
    const auto row = [&] { return Row(reader.name(), reader.attributes()); };
    if (!reader.readNextStartElement() || reader.name() != root)
        return reader.hasError() ? reader.errorString() : u"this is another kind of file"_s;
    if (row().text("version"_L1) != formatVersion)
        return u"the file is of another version"_s;
    if (!takeRoot(row()))
        note(u"the head makes no sense"_s);
    while (reader.readNextStartElement()) {
        if (!takeRow(row()))
            note(u"the row makes no sense"_s);
        reader.skipCurrentElement();
    }
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        note(reader.errorString());
    return problem;
}

/// Writes one element a line. Texts lose what XML cannot hold.
class Writer
{
public:
    Writer() : m_writer(&m_bytes)
    {
        m_writer.setAutoFormatting(true);
        m_writer.setAutoFormattingIndent(1);
        m_writer.writeStartDocument();
    }

    void open(QLatin1StringView name)
    {
        m_writer.writeStartElement(name);
        m_writer.writeAttribute("version"_L1, formatVersion);
    }
    void begin(QLatin1StringView name) { m_writer.writeEmptyElement(name); }
    void text(QLatin1StringView key, const QString &text)
    {
        m_writer.writeAttribute(key, xmlText(text.left(longestText)));
    }
    void number(QLatin1StringView key, quint64 number) { text(key, QString::number(number)); }
    void number(QLatin1StringView key, std::optional<quint64> value)
    {
        if (value)
            number(key, *value);
    }
    void day(QLatin1StringView key, QDate day) { text(key, day.toString(Qt::ISODate)); }
    void time(QLatin1StringView key, const QDateTime &time)
    {
        // With its offset: the same moment wherever it is read.
        text(key, time.toOffsetFromUtc(time.offsetFromUtc()).toString(Qt::ISODateWithMs));
    }
    void volumes(const TrafficVolumes &volumes)
    {
        number("received"_L1, volumes.home.received);
        number("sent"_L1, volumes.home.sent);
        number("roaming-received"_L1, volumes.roaming.received);
        number("roaming-sent"_L1, volumes.roaming.sent);
    }
    void totals(const TrafficTotals &totals)
    {
        for (const auto &[month, volumes] : totals.foldedMonths())
            row("month"_L1, month, volumes);
        for (const auto &[day, volumes] : totals.days())
            row("day"_L1, day, volumes);
    }

    QByteArray finish()
    {
        m_writer.writeEndDocument();
        return m_bytes;
    }

private:
    void row(QLatin1StringView name, QDate date, const TrafficVolumes &of)
    {
        begin(name);
        day("date"_L1, date);
        volumes(of);
    }

    QByteArray m_bytes;
    QXmlStreamWriter m_writer;
};

/// Rows of days and months; others are not for it.
std::optional<bool> takeTotals(const Row &row, TrafficTotals &totals)
{
    const bool isDay = row.name == "day"_L1;
    if (!isDay && row.name != "month"_L1)
        return std::nullopt;
    const auto date = row.day("date"_L1);
    const auto volumes = row.volumes();
    if (!date || !volumes)
        return false;
    if (isDay)
        totals.addDay(*date, *volumes);
    else
        totals.addMonth(*date, *volumes);
    return true;
}

QLatin1StringView wordOf(Allowance allowance)
{
    return allowance == Allowance::Main ? "main"_L1 : "roaming"_L1;
}

bool takeWarning(const Row &row, std::vector<QuotaMark> &given)
{
    const auto period = row.day("period"_L1);
    const auto quota = row.number("quota"_L1);
    const auto percent = row.number("percent"_L1);
    if (row.name != "warned"_L1 || !period || !quota || !percent || *percent > 100)
        return false;
    const bool isMain = row.text("allowance"_L1) == wordOf(Allowance::Main);
    given.push_back({*period, isMain ? Allowance::Main : Allowance::Roaming, *quota, int(*percent)});
    return true;
}

std::optional<HistoryRecord> recordFrom(const Row &row)
{
    const auto start = row.time("start"_L1);
    const auto end = row.time("end"_L1);
    const auto duration = row.duration("duration-ms"_L1);
    const auto volumes = row.volumes();
    const QString id = row.text("id"_L1);
    if (row.name != "record"_L1 || !start || !end || !duration || !volumes || id.isEmpty())
        return std::nullopt;
    HistoryRecord record;
    record.id = id;
    record.start = *start;
    record.end = *end;
    record.duration = duration_cast<seconds>(*duration);
    record.profileName = row.text("profile"_L1);
    record.volumes = *volumes;
    record.isRoaming = row.isOn("roaming"_L1);
    record.ended = row.text("ended"_L1);
    return record;
}

bool takeSessionHead(const Row &row, RunningSession &session)
{
    const auto start = row.time("start"_L1);
    const auto last = row.time("last"_L1);
    const auto duration = row.duration("duration-ms"_L1);
    session.id = row.text("id"_L1);
    session.profileName = row.text("profile"_L1);
    session.interfaceName = row.text("interface"_L1);
    session.boot = row.text("boot"_L1);
    session.isRoaming = row.isOn("roaming"_L1);
    session.hasRoamed = row.isOn("roamed"_L1);
    session.ended = row.text("ended"_L1);
    session.counters = {row.number("counter-received"_L1), row.number("counter-sent"_L1),
                        row.number("counter-index"_L1)};
    if (!start || !last || !duration || session.id.isEmpty())
        return false;
    session.start = *start;
    session.last = *last;
    session.duration = *duration;
    return true;
}

} // namespace

QByteArray formatTotals(const StoredTotals &totals)
{
    Writer writer;
    writer.open("traffic"_L1);
    writer.text("counted"_L1, totals.counted);
    writer.totals(totals.totals);
    for (const QuotaMark &mark : totals.given) {
        writer.begin("warned"_L1);
        writer.day("period"_L1, mark.period);
        writer.text("allowance"_L1, wordOf(mark.allowance));
        writer.number("quota"_L1, mark.quota);
        writer.number("percent"_L1, quint64(mark.percent));
    }
    return writer.finish();
}

ParsedStatistics<StoredTotals> parseTotals(const QByteArray &bytes)
{
    ParsedStatistics<StoredTotals> parsed;
    StoredTotals &stored = parsed.content;
    const auto takeRoot = [&](const Row &root) {
        stored.counted = root.text("counted"_L1);
        return true;
    };
    const auto takeRow = [&](const Row &row) {
        const auto taken = takeTotals(row, stored.totals);
        return taken ? *taken : takeWarning(row, stored.given);
    };
    parsed.problem = readRows(bytes, "traffic"_L1, takeRoot, takeRow);
    return parsed;
}

QByteArray formatHistory(const std::vector<HistoryRecord> &records)
{
    Writer writer;
    writer.open("historyRecord"_L1);
    for (const HistoryRecord &record : records) {
        writer.begin("record"_L1);
        writer.text("id"_L1, record.id);
        writer.time("start"_L1, record.start);
        writer.time("end"_L1, record.end);
        writer.number("duration-ms"_L1, quint64(milliseconds(record.duration).count()));
        writer.text("profile"_L1, record.profileName);
        writer.volumes(record.volumes);
        writer.text("roaming"_L1, record.isRoaming ? u"1"_s : u"0"_s);
        writer.text("ended"_L1, record.ended);
    }
    return writer.finish();
}

ParsedStatistics<std::vector<HistoryRecord>> parseHistory(const QByteArray &bytes)
{
    ParsedStatistics<std::vector<HistoryRecord>> parsed;
    QSet<QString> seen;
    const auto takeRow = [&](const Row &row) {
        auto record = recordFrom(row);
        if (!record || seen.contains(record->id))
            return false;
        seen += record->id;
        parsed.content.push_back(std::move(*record));
        return true;
    };
    parsed.problem = readRows(
        bytes, "historyRecord"_L1, [](const Row &) { return true; }, takeRow);
    return parsed;
}

QByteArray formatSession(const RunningSession &session)
{
    Writer writer;
    writer.open("session"_L1);
    writer.text("id"_L1, session.id);
    writer.time("start"_L1, session.start);
    writer.time("last"_L1, session.last);
    writer.number("duration-ms"_L1, quint64(session.duration.count()));
    writer.text("profile"_L1, session.profileName);
    writer.text("interface"_L1, session.interfaceName);
    writer.text("boot"_L1, session.boot);
    writer.text("roaming"_L1, session.isRoaming ? u"1"_s : u"0"_s);
    writer.text("roamed"_L1, session.hasRoamed ? u"1"_s : u"0"_s);
    writer.text("ended"_L1, session.ended);
    writer.number("counter-received"_L1, session.counters.received);
    writer.number("counter-sent"_L1, session.counters.sent);
    writer.number("counter-index"_L1, session.counters.index);
    writer.totals(session.carried);
    return writer.finish();
}

ParsedStatistics<RunningSession> parseSession(const QByteArray &bytes)
{
    ParsedStatistics<RunningSession> parsed;
    const auto takeRoot = [&](const Row &root) { return takeSessionHead(root, parsed.content); };
    const auto takeRow = [&](const Row &row) {
        return takeTotals(row, parsed.content.carried).value_or(false);
    };
    parsed.problem = readRows(bytes, "session"_L1, takeRoot, takeRow);
    return parsed;
}

} // namespace corva
