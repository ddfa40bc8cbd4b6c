// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/conversations.h"

#include <algorithm>

namespace corva
{

namespace
{

bool isSpoken(const Message &message)
{
    return message.box != MessageBox::Deleted && message.box != MessageBox::Reports && !message.isBroadcast;
}

bool isOnComputer(const MessageTable &computer, const Message &message)
{
    return isRecognisable(message) && std::ranges::any_of(message.parts, [&](const MessagePart &part) {
               return !part.pdu.isEmpty() && !computer.withPart(partIdentity(message, part)).isEmpty();
           });
}

/// Fed with messages, the newest first.
class Conversations
{
public:
    void add(const MessageRecord &record)
    {
        const Message &message = record.message;
        for (qsizetype i = 0; i < record.persons.size(); ++i) {
            Conversation &conversation = of(record.persons.at(i));
            if (!conversation.ids.isEmpty() && conversation.ids.last() == message.id)
                continue; // twice to one number
            conversation.ids += message.id;
            if (!conversation.numbers.contains(message.recipients.at(i)))
                conversation.numbers += message.recipients.at(i);
            if (!conversation.time.isValid())
                conversation.time = message.time;
            if (message.isReceived() && !message.isRead)
                ++conversation.unread;
        }
    }

    /// Those that were begun first are the newest.
    std::vector<Conversation> take()
    {
        for (Conversation &conversation : m_all)
            std::ranges::reverse(conversation.ids);
        return std::move(m_all);
    }

private:
    Conversation &of(const QString &person)
    {
        const auto known = m_places.constFind(person);
        if (known != m_places.constEnd())
            return m_all[*known];
        m_places.insert(person, m_all.size());
        Conversation conversation;
        conversation.key = person;
        return m_all.emplace_back(std::move(conversation));
    }

    QHash<QString, size_t> m_places;
    std::vector<Conversation> m_all;
};

} // namespace

std::vector<Conversation> conversationsOf(const MessageTable &computer, const MessageTable &mirror)
{
    QList<RecordPtr> records;
    for (const RecordPtr &record : mirror.records()) {
        if (!isOnComputer(computer, record->message))
            records += record;
    }
    const qsizetype mirrored = records.size();
    records += computer.records();
    std::ranges::inplace_merge(records.begin(), records.begin() + mirrored, records.end(), isAhead);
    Conversations conversations;
    for (const RecordPtr &record : records) {
        if (isSpoken(record->message))
            conversations.add(*record);
    }
    return conversations.take();
}

} // namespace corva
