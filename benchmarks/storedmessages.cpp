// SPDX-License-Identifier: GPL-3.0-or-later
#include "storedmessages.h"

#include "sms/messagestore.h"

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const QDateTime begin({2024, 5, 3}, {12, 0, 0}, Qt::OffsetFromUTC, 7200);

/// Words of a text that is as long as most are.
QString textOf(int number)
{
    static const QStringList words = u"tomorrow Straße meeting günstig 12:30 crème the train привет from "
                                     "you платформа later ok station call München"_s.split(u' ');
    QString text = QString::number(number);
    for (int i = 0; text.size() < 60 + number % 90; ++i)
        text += u' ' + words.at((number * 7 + i * 5) % words.size());
    return text;
}

} // namespace

Message messageOf(int number)
{
    MessagePart part;
    part.text = textOf(number);
    part.pdu = u"07919471060040340404"_s +
               QString::fromLatin1((part.text.toUtf8() + QByteArray::number(number)).toHex().toUpper());
    part.sent = begin.addSecs(number * 600);
    Message message;
    message.recipients = {u"+49171%1"_s.arg(1'000'000 + number % 300)};
    message.serviceCentre = u"+491710760000"_s;
    message.time = part.sent;
    message.arrived = part.sent.addSecs(3);
    message.isRead = true;
    message.parts = {part};
    if (number % 4 == 0) {
        message.box = MessageBox::Sent;
        message.parts[0].state = DeliveryState::Delivered;
        message.parts[0].reference = number % 256;
        message.parts[0].reported = part.sent.addSecs(5);
        message.parts[0].statusOctet = 0;
    }
    return message;
}

bool fillStore(const QString &folder, int count)
{
    MessageStore store(folder, 9);
    std::vector<Message> messages;
    for (int i = 0; i < count; ++i)
        messages.push_back(messageOf(i));
    store.add(std::move(messages));
    return store.flush();
}
