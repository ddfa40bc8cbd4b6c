// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/wvdialoutput.h"

#include "connection/profilechecks.h"

#include <iterator>
#include <limits>

namespace corva
{
namespace
{

using Kind = WvdialEvent::Kind;

/// What of a line becomes the event's value.
enum class Value { None, Word, Address, Number, Rest };

/// A line holds `mark`; its value stands behind it.
struct Rule {
    QByteArrayView mark;
    Kind kind;
    Value value;
};

// The first rule that fits decides. A line of wvdial begins "--> ", except that of a signal.
constexpr Rule rules[] = {
    {"--> Cannot open ", Kind::PortFailed, Value::Rest},
    {"--> Initializing modem.", Kind::Initializing, Value::None},
    {"--> Modem not responding.", Kind::ModemSilent, Value::None},
    {"--> Bad init string.", Kind::BadInit, Value::None},
    {"--> Waiting for carrier.", Kind::Dialling, Value::None},
    {"--> Carrier detected.", Kind::Carrier, Value::None},
    {"--> Pid of pppd: ", Kind::PppStarted, Value::Number},
    {"--> Using interface ", Kind::Interface, Value::Word},
    {"--> local  IP address ", Kind::LocalAddress, Value::Address},
    {"--> remote IP address ", Kind::PeerAddress, Value::Address},
    {"--> primary   DNS address ", Kind::NameServer, Value::Address},
    {"--> secondary DNS address ", Kind::NameServer, Value::Address},
    {"--> The line is busy.", Kind::Busy, Value::None},
    {"--> No Carrier!", Kind::NoCarrier, Value::None},
    {"--> No Answer.", Kind::NoAnswer, Value::None},
    {"--> No dial tone.", Kind::NoDialTone, Value::None},
    {"--> Invalid dial command.", Kind::CommandRefused, Value::None},
    {"--> Maximum Attempts Exceeded", Kind::AttemptsUsedUp, Value::None},
    {"--> The PPP daemon has died: Authentication error", Kind::Refused, Value::None},
    {"--> Authentication error.", Kind::Refused, Value::None},
    {"--> Auto Reconnect will be attempted", Kind::Reconnecting, Value::None},
    {"--> Disconnecting at ", Kind::Disconnecting, Value::None},
    {"Caught signal ", Kind::Terminating, Value::Number},
};

constexpr QByteArrayView exitMark = "(exit code = ";

/// The digits at the beginning of `text`; -1 without any, or for a number that no `int` holds.
int leadingNumber(QByteArrayView text)
{
    qint64 number = -1;
    for (const char c : text) {
        if (c < '0' || c > '9')
            break;
        number = qMax<qint64>(number, 0) * 10 + (c - '0');
        if (number > std::numeric_limits<int>::max())
            return -1;
    }
    return int(number);
}

/// Fills the event's value from what stands behind the mark; false when that has another shape.
bool setValue(WvdialEvent &event, Value value, QByteArrayView rest)
{
    if (value == Value::Number) {
        event.number = leadingNumber(rest);
        return event.number >= 0;
    }
    if (value != Value::None)
        event.text = QString::fromUtf8(rest.trimmed());
    if (value == Value::Address)
        return isHostAddress(event.text);
    return value != Value::Word || (!event.text.isEmpty() && !event.text.contains(u' '));
}

} // namespace

void WvdialOutput::take(const WvdialEvent &event, std::vector<WvdialEvent> &events)
{
    if (event.kind == Kind::PppStarted)
        m_pppEnded = false;
    // wvdial says the status twice.
    if (event.kind == Kind::PppEnded && std::exchange(m_pppEnded, true))
        return;
    events.push_back(event);
    // With pppd's option "debug" wvdial has heard of the refusal from pppd, and does not say the status any
    // more.
    constexpr int refusedByPeer = 19;
    if (event.kind == Kind::Refused)
        take({Kind::PppEnded, {}, refusedByPeer}, events);
}

void WvdialOutput::takeLine(std::vector<WvdialEvent> &events)
{
    const QByteArray line = std::exchange(m_line, {});
    for (const Rule &rule : rules) {
        if (!line.startsWith(rule.mark))
            continue;
        WvdialEvent event{rule.kind, {}, 0};
        if (setValue(event, rule.value, QByteArrayView(line).sliced(rule.mark.size())))
            take(event, events);
        break;
    }
    const qsizetype at = line.indexOf(exitMark);
    if (at < 0 || !line.startsWith("--> "))
        return;
    const int status = leadingNumber(QByteArrayView(line).sliced(at + exitMark.size()));
    if (status >= 0)
        take({Kind::PppEnded, {}, status}, events);
}

std::vector<WvdialEvent> WvdialOutput::feed(QByteArrayView chunk)
{
    std::vector<WvdialEvent> events;
    for (const char c : chunk) {
        if (c == '\n' || c == '\r')
            takeLine(events);
        else if (m_line.size() < longestLine)
            m_line += c;
    }
    return events;
}

std::vector<WvdialEvent> WvdialOutput::finish()
{
    std::vector<WvdialEvent> events;
    takeLine(events);
    return events;
}

} // namespace corva
