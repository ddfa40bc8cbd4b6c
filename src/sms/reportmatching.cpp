// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/reportmatching.h"

#include "sms/numbermatch.h"

#include <algorithm>
#include <chrono>
#include <limits>
#include <tuple>

using namespace std::chrono_literals;

namespace corva
{

namespace
{

/// The service centre's clock and ours may differ by this, zones that are not told included; and a report on
/// what was sent this short a time ago by our own clock needs no agreement of the two.
constexpr std::chrono::milliseconds near = 24h;

qint64 apart(const QDateTime &one, const QDateTime &other)
{
    return one.isValid() && other.isValid() ? std::abs(one.msecsTo(other))
                                            : std::numeric_limits<qint64>::max();
}

bool isSentByUs(const Message &message)
{
    return message.home() == MessageBox::Outbox || message.home() == MessageBox::Sent;
}

QDateTime sendingOf(const Message &message, const MessagePart &part)
{
    return part.sent.isValid() ? part.sent : message.time;
}

bool isMeant(const MessageRecord &record, const MessagePart &part, const StatusReport &report,
             const QString &person)
{
    if (part.reference != report.reference || record.persons.value(part.recipient) != person)
        return false;
    const QDateTime sending = sendingOf(record.message, part);
    return apart(sending, report.sent) <= near.count() || apart(sending, report.arrived) <= near.count();
}

bool isWaiting(const MessagePart &part)
{
    return part.state != DeliveryState::Delivered && part.state != DeliveryState::Failed;
}

} // namespace

std::optional<PartPlace> reportedPart(const QList<RecordPtr> &records, const StatusReport &report,
                                      int matchingLength)
{
    using Rank = std::tuple<bool, qint64>;
    const QString person = personKeyOf(report.recipient, matchingLength);
    std::optional<PartPlace> best;
    Rank bestRank;
    for (const RecordPtr &record : records) {
        if (report.reference < 0 || !isSentByUs(record->message))
            continue;
        const std::vector<MessagePart> &parts = record->message.parts;
        for (size_t i = 0; i < parts.size(); ++i) {
            const Rank rank{!isWaiting(parts[i]), apart(sendingOf(record->message, parts[i]), report.sent)};
            if (!isMeant(*record, parts[i], report, person) || (best && rank >= bestRank))
                continue;
            best = PartPlace{record->message.id, int(i)};
            bestRank = rank;
        }
    }
    return best;
}

void applyTo(MessagePart &part, const StatusReport &report)
{
    if (part.state == DeliveryState::Delivered)
        return;
    part.state = deliveryStateOf(report.status);
    part.statusOctet = report.status;
    part.reported = report.discharge.isValid() ? report.discharge : report.arrived;
}

Message reportEntry(const StatusReport &report)
{
    MessagePart part;
    part.pdu = report.pdu;
    part.reference = report.reference;
    part.statusOctet = report.status;
    part.state = deliveryStateOf(report.status);
    part.sent = report.sent;
    part.reported = report.discharge;
    Message entry;
    entry.box = MessageBox::Reports;
    entry.recipients = {report.recipient};
    entry.serviceCentre = report.serviceCentre;
    entry.arrived = report.arrived;
    entry.time = report.discharge.isValid() ? report.discharge : report.arrived;
    entry.isRead = true;
    entry.parts = {part};
    return entry;
}

StatusReport reportOf(const Message &entry)
{
    const MessagePart part = entry.parts.empty() ? MessagePart() : entry.parts.front();
    return {entry.recipients.value(0),
            part.reference,
            part.statusOctet,
            part.sent,
            part.reported,
            entry.arrived,
            part.pdu,
            entry.serviceCentre};
}

QList<RecordPtr> waitingReports(const QList<RecordPtr> &records, const Message &sent, int matchingLength)
{
    const MessageRecord record(sent, matchingLength);
    const auto isAbout = [&](const RecordPtr &entry) {
        const StatusReport report = reportOf(entry->message);
        const QString person = entry->persons.value(0);
        return std::ranges::any_of(sent.parts, [&](const MessagePart &part) {
            return report.reference >= 0 && isMeant(record, part, report, person);
        });
    };
    QList<RecordPtr> found;
    for (const RecordPtr &entry : records) {
        if (entry->message.box == MessageBox::Reports && entry->message.about.isEmpty() && isAbout(entry))
            found += entry;
    }
    return found;
}

} // namespace corva
