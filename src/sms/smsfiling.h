// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"
#include "sms/smspdu.h"
#include "sms/smsreplies.h"

#include <variant>

namespace corva
{

/// The box for a message's status on the card: 0 and 1 the inbox, 2 the drafts, 3 the outbox. Any other
/// status is kept in sight, in the inbox.
MessageBox boxOfStatus(int status);
/// The status under which a message is written to the card. 3GPP TS 27.005 3.1 <stat>.
int statusOfBox(MessageBox box, bool isRead);

/// The text of a message as people see it: also where data is text after all, printable Latin-1 octets, and a
/// sentence for a notice that something waits, or waits no more, which says nothing else. Empty without any.
QString shownText(const DecodedSms &sms);

/// What the card holds at one place: a message, or the report about one.
using FiledSms = std::variant<Message, StatusReport>;

/// A PDU from the card as the store keeps it. What cannot be read is a message in the inbox that says why and
/// holds the PDU. `arrived` stands in where the PDU tells no time. A notice to be discarded which only says
/// that nothing waits any more counts as read.
FiledSms fileSms(const ListedSms &listed, MessagePlace place, const QDateTime &arrived,
                 SmsDirection direction = SmsDirection::OnCard);

/// A page of a cell broadcast.
Message fileBroadcast(const QByteArray &pdu, const QDateTime &arrived);

/// The report in `pdu`; nothing when it cannot be read.
std::optional<StatusReport> fileReport(const QByteArray &pdu, const QDateTime &arrived);

/// A report that cannot be read, as an entry that says why and holds the PDU.
Message fileBrokenReport(const QByteArray &pdu, const QDateTime &arrived);

/// Octets of a PDU behind its service centre part, as "AT+CMGW" counts them; -1 for what is no PDU in
/// hexadecimal digits, which would be a command to the card.
int tpduLength(const QString &pdu);

} // namespace corva
