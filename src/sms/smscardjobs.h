// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/cmserrors.h"
#include "sms/message.h"
#include "sms/smsreplies.h"
#include "sms/splittext.h"

#include <QSet>
#include <optional>
#include <variant>
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

/// Has the card keep new messages again, when it hands them over: nobody takes them from now on.
void storeNewMessages(SerialThread &link);

/// The card's stores by their numbers. 3GPP TS 27.005 3.1 <mem1>.
enum class Storage { Sim = 0, Card = 1, Reports = 2 };
Storage storageOf(MessagePlace place);
/// The store that a report names ("SM", "ME", "MT", "SR"); `otherwise` for any other name.
Storage storageNamed(const QString &name, Storage otherwise);

/// A PDU and where the card keeps it.
struct KeptPdu {
    Storage storage = Storage::Sim;
    int index = -1; ///< -1: nowhere, or the card did not say
    QString pdu;
};
/// A delivery report with its place, or what should be one and cannot be read.
struct KeptReport {
    KeptPdu kept;
    std::variant<StatusReport, Message> content;
};

/// What lies in one store.
struct Listing {
    bool isRead = false;
    bool isMissing = false; ///< the card has no such store
    QString fault;          ///< a sentence, when it was not read
    std::vector<Message> messages;
    std::vector<KeptReport> reports;
    std::optional<StoreFill> fill;
    bool wasCut = false;     ///< an answer came that had no end, or none at all
    QSet<QString> cutUnread; ///< the PDUs that such an answer showed as unread
};
/// A list that was cut short is asked for once more: the card has marked what is in it as read.
Listing list(SerialThread &link, MessagePlace place);

/// One message that the card announced by its index.
struct Fetched {
    std::optional<Message> message;
    std::optional<KeptReport> report;
    std::optional<StoreFill> fill;
    QString fault; ///< a sentence; none when the message is simply not there any more
};
Fetched fetch(SerialThread &link, MessagePlace place, int index);
/// A delivery report that the card announced. In a store for messages it may turn out to be one.
Fetched fetchReport(SerialThread &link, Storage storage, int index);
/// Reports that came into their own store while the program was not there.
std::vector<KeptReport> listReports(SerialThread &link);

enum class Removal {
    Removed,
    NotThere, ///< nothing, or another message by now, lies at that index: nothing was deleted
    Failed
};
/// Deletes what lies there if it still is that PDU.
Removal remove(SerialThread &link, const KeptPdu &kept);

/// A PDU to be written into a store.
struct CardEntry {
    QString pdu;
    int status;
};
/// Writes them all; nothing when that worked, else the reason for the first that did not: those before it
/// are taken out again then.
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
    enum Outcome {
        Sent,
        NotSent,
        Unsure,  ///< the card took it and said nothing more: it may have gone out
        CardGone ///< before it took anything
    } outcome = NotSent;
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
