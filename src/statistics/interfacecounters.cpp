// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/interfacecounters.h"

#include <QFile>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 longestCounter = 21; ///< the digits of 2^64 and a line feed
constexpr qsizetype longestName = 15; ///< IFNAMSIZ without the NUL

bool isInterfaceName(const QString &name)
{
    const auto isOrdinary = [](QChar c) { return c > u' ' && c < u'\x7f' && c != u'/' && c != u':'; };
    return !name.isEmpty() && name.size() <= longestName && name != "."_L1 && name != ".."_L1 &&
           std::all_of(name.begin(), name.end(), isOrdinary);
}

std::optional<quint64> readCounter(const QString &path)
{
    QFile file(path);
    // Unbuffered: such a file may be gone at any moment, and is made at each reading.
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::nullopt;
    return parseCounter(file.read(longestCounter + 1));
}

/// The bytes between two values of which the second is smaller.
quint64 acrossTheEnd(quint64 last, quint64 now)
{
    constexpr quint64 range32 = 1ULL << 32;
    if (last < range32)
        return last >= range32 / 2 ? range32 - last + now : now;
    return last >= 1ULL << 63 ? now - last : now; // unsigned: wraps with the counter
}

} // namespace

std::optional<quint64> parseCounter(const QByteArray &content)
{
    const QByteArray digits = content.endsWith('\n') ? content.chopped(1) : content;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (content.size() > longestCounter || digits.isEmpty() ||
        !std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    bool fits = false;
    const quint64 value = digits.toULongLong(&fits);
    return fits ? std::optional(value) : std::nullopt;
}

CounterReading readCounters(const QString &interfaceName, const QString &folder)
{
    if (!isInterfaceName(interfaceName))
        return {};
    const QString path = folder + u'/' + interfaceName;
    // The index first: counters that are read after it are those of this interface or of none.
    CounterReading reading;
    reading.index = readCounter(path + u"/ifindex"_s);
    reading.received = readCounter(path + u"/statistics/rx_bytes"_s);
    reading.sent = readCounter(path + u"/statistics/tx_bytes"_s);
    return reading;
}

quint64 CounterMeter::step(std::optional<quint64> &last, std::optional<quint64> now, bool isReplaced) const
{
    if (!now)
        return 0;
    const std::optional<quint64> before = std::exchange(last, now);
    if (!before)
        return m_isNew ? *now : 0;
    if (isReplaced)
        return *now;
    return *now >= *before ? *now - *before : acrossTheEnd(*before, *now);
}

TrafficVolume CounterMeter::advance(const CounterReading &reading)
{
    const bool isReplaced = m_last.index && reading.index && *m_last.index != *reading.index;
    if (reading.index)
        m_last.index = reading.index;
    return {step(m_last.received, reading.received, isReplaced), step(m_last.sent, reading.sent, isReplaced)};
}

} // namespace corva
