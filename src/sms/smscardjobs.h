// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/cmserrors.h"
#include "sms/message.h"
#include "sms/smsreplies.h"
#include "sms/splittext.h"

#include <optional>
#include <vector>

class SerialThread;

/// What the message service has the card do, each on the card worker and with a plain value for the GUI
/// thread.
namespace corva::smsjobs
{

/// How the card was made ready for messages.
struct Preparation {
    bool isReady = false; ///< messages travel as PDUs
    QString serviceCentre;
    QString fault; ///< a sentence, when new messages will not be announced
};
Preparation prepare(SerialThread &link);

/// What lies in one store.
struct Listing {
    bool isRead = false;
    bool isMissing = false; ///< the card has no such store
    QString fault;          ///< a sentence, when it was not read
    std::vector<Message> messages;
    std::vector<StatusReport> reports;
    std::optional<StoreFill> fill;
};
Listing list(SerialThread &link, MessagePlace place);

/// One message that the card announced by its index.
struct Fetched {
    std::optional<Message> message;
    std::optional<StatusReport> report;
    std::optional<StoreFill> fill;
    QString fault; ///< a sentence; none when the message is simply not there any more
};
Fetched fetch(SerialThread &link, MessagePlace place, int index);
/// A delivery report that the card announced.
Fetched fetchReport(SerialThread &link, int index);
/// Reports that came while the program was not there, with their index in `storageIndex` order.
struct KeptReport {
    int index;
    QByteArray pdu;
};
std::vector<KeptReport> listReports(SerialThread &link);

enum class Removal {
    Removed,
    NotThere, ///< nothing, or another message by now, lies at that index: nothing was deleted
    Failed
};
/// Deletes the message at `index` if it still is the one with that PDU.
Removal remove(SerialThread &link, MessagePlace place, int index, const QString &pdu);
/// Deletes a delivery report, if it still is that one.
Removal removeReport(SerialThread &link, int index, const QByteArray &pdu);

/// A PDU to be written into a store.
struct CardEntry {
    QString pdu;
    int status;
};
/// Writes them all; nothing when that worked, else the reason for the first that did not.
std::optional<QString> write(SerialThread &link, MessagePlace place, const std::vector<CardEntry> &entries);

/// One part on its way.
struct OutgoingPart {
    SplitText split;
    int index = 0;
    QString recipient;
    QString serviceCentre;
    int concatReference = 0;
    bool asksReport = false;
};
struct SentPart {
    bool isSent = false;
    int reference = -1;
    QString pdu;
    CmsError error; ///< when it was not sent
    QString fault;  ///< the same as a sentence
};
SentPart send(SerialThread &link, const OutgoingPart &part);

/// Why a service centre of that number cannot be named in a message, as a sentence; empty when it can.
QString whyNoCentre(const QString &number);

/// The part as a PDU, without sending it. Its recipient is as `readRecipients` gives it, its service centre
/// is one that can be named.
QString encode(SerialThread &link, const OutgoingPart &part);

/// Why the last command of the link failed, as a sentence.
QString whyFailed(const SerialThread &link);

} // namespace corva::smsjobs
