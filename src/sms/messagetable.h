// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QHash>
#include <QList>
#include <memory>
#include <mutex>

namespace corva
{

/// A message with what is found by it. Another one takes its place when the message changes, so that other
/// threads may have it as it is.
struct MessageRecord {
    /// `before` is what it takes the place of; null for a new one.
    MessageRecord(Message message, int matchingLength, const MessageRecord *before = nullptr);

    const Message message;
    const qint64 when;         ///< `message.time` in ms since 1970
    const qint64 arrived;      ///< the same of `message.arrived`
    const QStringList persons; ///< the keys of the recipients

    /// Text and numbers as they are searched. Made when it is first asked for, on any thread.
    const QString &folded() const;

    mutable QByteArray xml; ///< once it was written; of the writing thread alone

private:
    struct FoldedOnce {
        std::once_flag once;
        QString text;
    };
    std::shared_ptr<FoldedOnce> m_folded; ///< one for all that have the same text
};
using RecordPtr = std::shared_ptr<const MessageRecord>;

/// The order of all lists: the newest first, of those of one moment what arrived last; the id so that the
/// order is one at all.
bool isAhead(const RecordPtr &one, const RecordPtr &other);

/// What a received part is recognised by when it comes again.
QString partIdentity(const Message &message, const MessagePart &part);
/// Whether it comes from the network and would be the same message if it came again: what we sent ourselves
/// may well be sent twice.
bool isRecognisable(const Message &message);

/// Messages by time, the newest first, with ways to find them. No two have one id.
class MessageTable
{
public:
    explicit MessageTable(int matchingLength) : m_matchingLength(matchingLength) {}
    /// From a file: ids that are missing or taken are given anew.
    MessageTable(std::vector<Message> messages, int matchingLength);

    const QList<RecordPtr> &records() const { return m_records; }
    /// Null when there is none.
    RecordPtr find(const QString &id) const { return m_byId.value(id); }
    /// Adds the message, or replaces the one with its id.
    void put(Message message);
    void remove(const QStringList &ids);

    /// Those of this very moment, in ms since 1970.
    QList<RecordPtr> atTime(qint64 when) const;
    /// Those that hold a received part of this identity.
    QList<RecordPtr> withPart(const QString &identity) const;
    /// Long messages of the same box, number, reference, width of reference and number of parts.
    QList<RecordPtr> likeLong(const Message &message) const;

private:
    using Place = QList<RecordPtr>::iterator;
    Place placeOf(const RecordPtr &record);
    QString longKey(const Message &message) const;
    void enter(const RecordPtr &record);
    void leave(const RecordPtr &record);

    int m_matchingLength;
    QList<RecordPtr> m_records;
    QHash<QString, RecordPtr> m_byId;
    QMultiHash<size_t, QString> m_byPart; ///< hash of the identity to id
    QMultiHash<QString, QString> m_byLong;
};

/// Never given before, and greater than all that were given before.
QString newMessageId();

} // namespace corva
