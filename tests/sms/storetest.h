// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messagestore.h"

#include <QTemporaryDir>
#include <QTest>

/// A moment of the tests, so many seconds later.
inline QDateTime moment(qint64 seconds = 0)
{
    return QDateTime({2024, 5, 3}, {12, 0, 0}, Qt::OffsetFromUTC, 7200).addSecs(seconds);
}

/// A received message of one part. Its PDU is the text's own.
inline corva::Message received(const QString &sender, const QString &text, qint64 seconds = 0)
{
    corva::MessagePart part;
    part.text = text;
    part.sent = moment(seconds);
    part.pdu = QStringLiteral("0004") + QString::fromLatin1(sender.toUtf8().toHex()) +
               QString::number(seconds, 16).rightJustified(8, u'0').toUpper() +
               QString::fromLatin1(text.toUtf8().toHex()).toUpper();
    corva::Message message;
    message.recipients = QStringList{sender};
    message.time = part.sent;
    message.arrived = part.sent.addSecs(2);
    message.parts = {part};
    return message;
}

/// One part of a received long message.
inline corva::Message longPart(const QString &sender, int reference, int total, int sequence,
                               const QString &text, qint64 seconds = 0)
{
    corva::Message message = received(sender, text, seconds);
    message.concatReference = reference;
    message.total = total;
    message.parts.front().sequence = sequence;
    message.parts.front().pdu += QString::number(0x10000 + reference, 16) + QString::number(sequence);
    return message;
}

/// A message that the network took, a part for each of the references that it gave.
inline corva::Message sentMessage(const QString &recipient, const QList<int> &references, qint64 seconds = 0)
{
    corva::Message message;
    message.box = corva::MessageBox::Sent;
    message.recipients = QStringList{recipient};
    message.time = moment(seconds);
    message.arrived = message.time;
    message.isRead = true;
    message.asksReport = true;
    message.total = int(references.size());
    for (const int reference : references) {
        corva::MessagePart part;
        part.sequence = int(message.parts.size()) + 1;
        part.text = QString::number(reference);
        part.reference = reference;
        part.asksReport = true;
        part.state = corva::DeliveryState::Sent;
        part.sent = moment(seconds);
        message.parts.push_back(part);
    }
    return message;
}

/// A store that has read its folder.
class LoadedStore
{
public:
    explicit LoadedStore(const QString &folder) : store(folder, 9)
    {
        QObject::connect(&store, &corva::MessageStore::sigError, &store,
                         [this](const QString &text) { errors += text; });
        store.load();
        isLoaded = QTest::qWaitFor([this] { return store.isLoaded(); });
    }

    corva::MessageStore *operator->() { return &store; }

    /// The messages of a box, the newest first.
    std::vector<corva::Message> box(corva::MessageBox box,
                                    corva::MessagePlace place = corva::MessagePlace::Computer) const
    {
        return store.messages(store.ids(box, place));
    }
    QStringList texts(corva::MessageBox which,
                      corva::MessagePlace place = corva::MessagePlace::Computer) const
    {
        QStringList texts;
        for (const corva::Message &message : box(which, place))
            texts += message.text();
        return texts;
    }

    corva::MessageStore store;
    QStringList errors;
    bool isLoaded = false;
};
