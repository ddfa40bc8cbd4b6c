// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <vector>

namespace corva
{

/// Reports are the delivery reports themselves, as entries of their own.
enum class MessageBox { Inbox, Outbox, Sent, Drafts, Deleted, Reports };

/// Where a message is kept. Those on the SIM and on the card are a mirror of what was listed there last.
enum class MessagePlace { Computer, Sim, Card };

/// `None` for what was not sent by us. `StillTrying`: the service centre reported that it goes on trying.
/// `Unsure`: it may have been sent, and nobody knows; it is not sent again unasked.
enum class DeliveryState { None, Queued, Sending, Sent, Delivered, StillTrying, Failed, Unsure };

/// What TP-ST says: 0x00..0x1F delivered, 0x20..0x3F still trying, all above failed. 3GPP TS 23.040 9.2.3.15.
DeliveryState deliveryStateOf(int statusOctet);

/// One PDU of a message. A message to several people has the parts of each of them.
struct MessagePart {
    int sequence = 1;      ///< 1..total of the message
    int recipient = 0;     ///< index into `Message::recipients`
    QString pdu;           ///< hex as it was listed or sent; always kept
    QString text;          ///< decoded
    int storageIndex = -1; ///< on the SIM or card
    int reference = -1;    ///< TP-MR that the network gave, 0..255
    bool asksReport = false;
    DeliveryState state = DeliveryState::None;
    QDateTime sent;       ///< received: the service centre's time stamp; own: when the network took it
    QDateTime reported;   ///< the discharge time of the last report
    int statusOctet = -1; ///< TP-ST of the last report
    int errorCode = -1;   ///< of "+CMS ERROR", when sending was refused
    QString fault;        ///< why it was not sent, as a sentence, where no code says it

    bool operator==(const MessagePart &) const = default;
};

/// One message as people see it, whatever number of parts it travels in.
struct Message {
    QString id; ///< stable over restarts and never used again; the store gives it
    MessageBox box = MessageBox::Inbox;
    MessagePlace place = MessagePlace::Computer;
    QStringList recipients; ///< whom it goes to; of a received one the sender alone
    QString serviceCentre;
    QDateTime time;    ///< what is shown and sorted by
    QDateTime arrived; ///< when this computer got or made it
    bool isRead = false;
    int total = 1;            ///< parts to one recipient
    int concatReference = -1; ///< of the parts' headers, -1 without
    bool is16Bit = false;     ///< how wide that reference is
    std::vector<MessagePart> parts;
    bool asksReport = false;
    bool isBroadcast = false;
    int channel = -1;                           ///< of a cell broadcast
    QString error;                              ///< why it could not be decoded; the PDU is in `parts`
    MessageBox deletedFrom = MessageBox::Inbox; ///< where a restored one goes; of use in `Deleted` only
    QString about;                              ///< of a report: the id of the message that it is about
    QString subscriber; ///< of one to be sent: the IMSI with which it is to go out; empty when not known

    bool operator==(const Message &) const = default;

    /// Where it belongs: of a deleted one the box that it was deleted from.
    MessageBox home() const;
    bool isReceived() const { return home() == MessageBox::Inbox; }
    /// The parts to the first recipient in their order, each gap of missing ones marked by "[…]".
    QString text() const;
    /// To the first recipient; 0 when complete.
    int missingParts() const;
    /// Of the whole: what is still under way comes first, then what is unsure or failed; `Delivered` when
    /// each part that asked for a report got it. `None` for received ones.
    DeliveryState state() const;
    /// The same for one recipient alone.
    DeliveryState state(int recipient) const;
};

/// A decoded SMS-STATUS-REPORT, as far as it matters here. 3GPP TS 23.040 9.2.2.3.
struct StatusReport {
    QString recipient;
    int reference = -1; ///< TP-MR, 0..255
    int status = -1;    ///< TP-ST
    QDateTime sent;     ///< TP-SCTS: when the service centre took the message
    QDateTime discharge;
    QDateTime arrived; ///< when this computer got it; now when not given
    QString pdu;       ///< hex as read
    QString serviceCentre;
};

/// All that was said with one person.
struct Conversation {
    QString key;         ///< the same for all spellings of a number that match
    QStringList numbers; ///< those spellings, the newest first
    QStringList ids;     ///< the oldest first, as it is read
    QDateTime time;      ///< of the newest message
    int unread = 0;

    bool operator==(const Conversation &) const = default;
};

} // namespace corva

Q_DECLARE_METATYPE(corva::Message)
