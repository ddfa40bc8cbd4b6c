// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagefiling.h"

#include <QSet>
#include <algorithm>
#include <chrono>
#include <limits>

using namespace std::chrono_literals;

namespace corva
{

namespace
{

/// How far apart the parts of one long message may be at the service centre. References are used again, a
/// narrow one by every 256th long message.
constexpr std::chrono::milliseconds oneMessage = 24h;
/// A broadcast is repeated for as long as it holds; the same page after this is said anew.
constexpr std::chrono::milliseconds oneBroadcast = 24h;

qint64 apart(const QDateTime &one, const QDateTime &other)
{
    return std::abs(one.msecsTo(other));
}

/// When the service centre got the part; when it came here where that is not known.
QDateTime timeOf(const Message &message, const MessagePart &part)
{
    return part.sent.isValid() ? part.sent : message.arrived;
}

qint64 nearestTimes(const Message &one, const Message &other)
{
    qint64 nearest = std::numeric_limits<qint64>::max();
    for (const MessagePart &part : one.parts) {
        for (const MessagePart &otherPart : other.parts)
            nearest = std::min(nearest, apart(timeOf(one, part), timeOf(other, otherPart)));
    }
    return nearest;
}

bool hasPlaceFor(const Message &message, const Message &parts)
{
    return std::ranges::none_of(parts.parts, [&](const MessagePart &part) {
        return std::ranges::find(message.parts, part.sequence, &MessagePart::sequence) != message.parts.end();
    });
}

bool isOutOfRange(const Message &message)
{
    return std::ranges::any_of(message.parts, [&](const MessagePart &part) {
        return part.sequence < 1 || part.sequence > message.total;
    });
}

bool isSameStill(const Message &message, const Message &known)
{
    return !message.isBroadcast || apart(message.arrived, known.arrived) < oneBroadcast.count();
}

RecordPtr holderOf(const MessageTable &table, const Message &message, const MessagePart &part)
{
    if (part.pdu.isEmpty())
        return {};
    for (const RecordPtr &record : table.withPart(partIdentity(message, part))) {
        if (isSameStill(message, record->message))
            return record;
    }
    return {};
}

/// The message of the last listing that this is: the one with the same part in the same place of the card,
/// else with the same part at all.
RecordPtr lastListed(const MessageTable &old, const Message &message, const QSet<QString> &claimed)
{
    RecordPtr sameText;
    for (const MessagePart &part : message.parts) {
        for (const RecordPtr &record : old.records()) {
            if (record->message.place != message.place || claimed.contains(record->message.id))
                continue;
            for (const MessagePart &known : record->message.parts) {
                if (known.pdu != part.pdu)
                    continue;
                if (known.storageIndex == part.storageIndex)
                    return record;
                sameText = record;
            }
        }
    }
    return sameText;
}

bool hasNewPart(const Message &message, const Message &before)
{
    return std::ranges::any_of(message.parts, [&](const MessagePart &part) {
        return std::ranges::find(before.parts, part.pdu, &MessagePart::pdu) == before.parts.end();
    });
}

} // namespace

Message tidied(Message message)
{
    if (!message.arrived.isValid())
        message.arrived = QDateTime::currentDateTime();
    if (!message.time.isValid())
        message.time = message.arrived;
    if (message.isReceived() && isOutOfRange(message)) {
        message.total = 1;
        message.concatReference = -1;
        for (MessagePart &part : message.parts)
            part.sequence = 1;
    }
    return message;
}

RecordPtr takeKnownParts(const MessageTable &table, Message &message)
{
    RecordPtr known;
    if (!isRecognisable(message))
        return known;
    std::erase_if(message.parts, [&](const MessagePart &part) {
        const RecordPtr holder = holderOf(table, message, part);
        if (holder)
            known = holder;
        return holder != nullptr;
    });
    return message.parts.empty() ? known : nullptr;
}

RecordPtr longMessageFor(const MessageTable &table, const Message &message)
{
    RecordPtr best;
    qint64 bestDistance = oneMessage.count() + 1;
    for (const RecordPtr &record : table.likeLong(message)) {
        const qint64 distance = nearestTimes(record->message, message);
        if (hasPlaceFor(record->message, message) && distance < bestDistance) {
            best = record;
            bestDistance = distance;
        }
    }
    return best;
}

Message joined(Message message, const Message &parts)
{
    message.parts.insert(message.parts.end(), parts.parts.begin(), parts.parts.end());
    std::ranges::sort(message.parts, {}, &MessagePart::sequence);
    message.time = std::min(message.time, parts.time);
    message.isRead = message.isRead && parts.isRead;
    if (message.box == MessageBox::Deleted)
        message.box = message.deletedFrom;
    return message;
}

bool isKnown(const MessageTable &table, const Message &message)
{
    Message unknown = message;
    if (table.find(message.id) || takeKnownParts(table, unknown))
        return true;
    const auto same = [&](const RecordPtr &record) {
        const Message &known = record->message;
        return known.home() == message.home() && known.recipients == message.recipients &&
               known.text() == message.text();
    };
    return std::ranges::any_of(
        message.time.isValid() ? table.atTime(message.time.toMSecsSinceEpoch()) : table.records(), same);
}

std::vector<Message> mirrored(const MessageTable &old, MessagePlace place, std::vector<Message> listed,
                              int matchingLength)
{
    MessageTable table(matchingLength);
    for (Message &message : listed) {
        message.place = place;
        message.id = newMessageId();
        message = tidied(std::move(message));
        const RecordPtr begun = longMessageFor(table, message);
        table.put(begun ? joined(begun->message, message) : std::move(message));
    }
    std::vector<Message> messages;
    QSet<QString> claimed;
    for (const RecordPtr &record : table.records()) {
        Message message = record->message;
        if (const RecordPtr known = lastListed(old, message, claimed)) {
            message.id = known->message.id;
            // Nobody has seen a part that came since, and the card tells whether that one was read.
            message.isRead =
                known->message.isRead && (message.isRead || !hasNewPart(message, known->message));
            message.arrived = known->message.arrived;
            claimed += message.id;
        }
        messages.push_back(std::move(message));
    }
    return messages;
}

} // namespace corva
