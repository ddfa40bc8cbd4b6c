// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagetable.h"

#include "sms/numbermatch.h"
#include "sms/pduidentity.h"
#include "sms/textfold.h"

#include <QSet>
#include <QUuid>
#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QStringList personsOf(const Message &message, int matchingLength)
{
    QStringList persons;
    for (const QString &number : message.recipients)
        persons += personKeyOf(number, matchingLength);
    return persons;
}

QString searchedText(const Message &message)
{
    return foldedText(message.recipients.join(u'\n') + u'\n' + message.text());
}

/// Whether the search finds both alike.
bool readsAlike(const Message &one, const Message &other)
{
    return one.recipients == other.recipients && one.total == other.total &&
           std::ranges::equal(one.parts, other.parts, [](const MessagePart &part, const MessagePart &like) {
               return part.sequence == like.sequence && part.recipient == like.recipient &&
                      part.text == like.text;
           });
}

/// Whether both are found by the same keys.
bool isFoundAlike(const Message &one, const Message &other)
{
    return one.home() == other.home() && one.recipients == other.recipients && one.total == other.total &&
           one.concatReference == other.concatReference && one.is16Bit == other.is16Bit &&
           one.isBroadcast == other.isBroadcast &&
           std::ranges::equal(one.parts, other.parts, {}, &MessagePart::pdu, &MessagePart::pdu);
}

qint64 inMilliseconds(const QDateTime &time)
{
    return time.isValid() ? time.toMSecsSinceEpoch() : 0;
}

bool isLong(const Message &message)
{
    return message.total > 1 && message.concatReference >= 0;
}

} // namespace

MessageRecord::MessageRecord(Message with, int matchingLength, const MessageRecord *before)
    : message(std::move(with)), when(inMilliseconds(message.time)), arrived(inMilliseconds(message.arrived)),
      persons(personsOf(message, matchingLength)),
      m_folded(before && readsAlike(before->message, message) ? before->m_folded
                                                              : std::make_shared<FoldedOnce>())
{
}

const QString &MessageRecord::folded() const
{
    std::call_once(m_folded->once, [this] { m_folded->text = searchedText(message); });
    return m_folded->text;
}

bool isAhead(const RecordPtr &one, const RecordPtr &other)
{
    return std::tie(one->when, one->arrived, one->message.id) >
           std::tie(other->when, other->arrived, other->message.id);
}

QString newMessageId()
{
    return QUuid::createUuid().toString(QUuid::Id128);
}

QString partIdentity(const Message &message, const MessagePart &part)
{
    // A page of a broadcast has no service centre's address ahead.
    return message.isBroadcast ? part.pdu.toUpper() : pduIdentity(part.pdu);
}

bool isRecognisable(const Message &message)
{
    return message.home() == MessageBox::Inbox || message.home() == MessageBox::Reports;
}

MessageTable::MessageTable(std::vector<Message> messages, int matchingLength)
    : m_matchingLength(matchingLength)
{
    m_records.reserve(qsizetype(messages.size()));
    m_byId.reserve(qsizetype(messages.size()));
    for (Message &message : messages) {
        if (message.id.isEmpty() || m_byId.contains(message.id))
            message.id = newMessageId();
        m_records += std::make_shared<const MessageRecord>(std::move(message), m_matchingLength);
        enter(m_records.last());
    }
    std::ranges::sort(m_records, isAhead);
}

MessageTable::Place MessageTable::placeOf(const RecordPtr &record)
{
    return std::ranges::lower_bound(m_records, record, isAhead);
}

void MessageTable::put(Message message)
{
    const RecordPtr before = find(message.id);
    const auto record =
        std::make_shared<const MessageRecord>(std::move(message), m_matchingLength, before.get());
    const bool isInPlace = before && before->when == record->when && before->arrived == record->arrived;
    if (isInPlace)
        *placeOf(record) = record;
    else if (before)
        m_records.erase(placeOf(before));
    if (!isInPlace)
        m_records.insert(placeOf(record), record);
    if (before && isFoundAlike(before->message, record->message)) {
        m_byId[record->message.id] = record;
        return;
    }
    if (before)
        leave(before);
    enter(record);
}

void MessageTable::remove(const QStringList &ids)
{
    QSet<QString> gone;
    for (const QString &id : ids) {
        if (const RecordPtr record = find(id)) {
            leave(record);
            gone += id;
        }
    }
    if (!gone.isEmpty())
        m_records.removeIf([&](const RecordPtr &record) { return gone.contains(record->message.id); });
}

QList<RecordPtr> MessageTable::atTime(qint64 when) const
{
    const auto isNewer = std::ranges::greater();
    return {std::ranges::lower_bound(m_records, when, isNewer, &MessageRecord::when),
            std::ranges::upper_bound(m_records, when, isNewer, &MessageRecord::when)};
}

QString MessageTable::longKey(const Message &message) const
{
    const QString sender = personKeyOf(message.recipients.value(0), m_matchingLength);
    return u"%1/%2/%3/%4/%5"_s.arg(int(message.home()))
        .arg(message.concatReference)
        .arg(message.is16Bit)
        .arg(message.total)
        .arg(sender);
}

void MessageTable::enter(const RecordPtr &record)
{
    const Message &message = record->message;
    m_byId.insert(message.id, record);
    if (isLong(message))
        m_byLong.insert(longKey(message), message.id);
    if (!isRecognisable(message))
        return;
    for (const MessagePart &part : message.parts)
        m_byPart.insert(qHash(partIdentity(message, part)), message.id);
}

void MessageTable::leave(const RecordPtr &record)
{
    const Message &message = record->message;
    m_byId.remove(message.id);
    if (isLong(message))
        m_byLong.remove(longKey(message), message.id);
    if (!isRecognisable(message))
        return;
    for (const MessagePart &part : message.parts)
        m_byPart.remove(qHash(partIdentity(message, part)), message.id);
}

QList<RecordPtr> MessageTable::withPart(const QString &identity) const
{
    QList<RecordPtr> found;
    for (const QString &id : m_byPart.values(qHash(identity))) {
        const RecordPtr record = find(id);
        const auto hasIdentity = [&](const MessagePart &part) {
            return partIdentity(record->message, part) == identity;
        };
        if (std::ranges::any_of(record->message.parts, hasIdentity))
            found += record;
    }
    return found;
}

QList<RecordPtr> MessageTable::likeLong(const Message &message) const
{
    QList<RecordPtr> found;
    if (isLong(message)) {
        for (const QString &id : m_byLong.values(longKey(message)))
            found += find(id);
    }
    return found;
}

} // namespace corva
