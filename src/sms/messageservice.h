// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

namespace corva
{

class CardMonitor;
class MessageStore;

/// A message as the composer hands it over: numbers already checked, each without blanks and hyphens.
struct OutgoingSms {
    QStringList recipients;
    QString text;
    bool asksReport = false; ///< for this message, whatever the setting "deliveryReport" is then
    QString draftId;         ///< the draft that it was, which goes once the message is queued; may be empty
};

/// How far the sending has come.
struct SendProgress {
    bool isActive = false;
    QString recipient; ///< of the part that is on its way
    int sentParts = 0; ///< of this run, failed ones included
    int totalParts = 0;
    bool operator==(const SendProgress &) const = default;
};

/// Room in one of the card's stores.
struct StoreCapacity {
    int used = 0;
    int total = 0;
    bool operator==(const StoreCapacity &) const = default;
    /// Whether it is time to say so: less than a tenth is left, or two places.
    bool isNearlyFull() const
    {
        const int left = total - used;
        return left <= std::min(2, total / 2) || left * 10 < total;
    }
};

/// What is known of one place on the card.
struct PlaceState {
    bool isLoading = false;
    bool isRead = false; ///< listed at least once since the card was found
    QString error;       ///< why the last listing failed, for the person; empty when it did not
    std::optional<StoreCapacity> capacity;
    bool operator==(const PlaceState &) const = default;
};

/// The messages' traffic between the card and the store: receives, lists, sends, moves, deletes. Lives on the
/// GUI thread and never waits there: what concerns the card runs on the card worker.
///
/// A message leaves the card only after the store has it on disk; a message that is to be sent is on disk
/// before its first part goes out, and each part's outcome before the next.
class MessageService : public QObject
{
    Q_OBJECT

public:
    MessageService(CardMonitor *monitor, MessageStore *store, QObject *parent = nullptr);
    ~MessageService() override;

    MessageStore *store() const;

    /// The phonebook's name for a number; the number itself where there is none.
    QString nameFor(const QString &number) const;
    using NameLookup = std::function<QString(const QString &number)>;
    void setNameLookup(NameLookup lookup);

    /// Lists what the SIM and the card hold, and files the delivery reports that came meanwhile. Wanted at
    /// each `sigCardReady`.
    void readCard();

    /// Texts in which the card reported messages ("+CMTI:", "+CMT:"), delivery reports ("+CDSI:"), immediate
    /// messages ("+JCLAS:") and cell broadcasts ("+CBM:"). What a text brings twice is filed once.
    void takeMessages(const QString &text);
    void takeDeliveryReports(const QString &text);
    /// Whether a message that asked for a delivery report waits for it, so that "+CDSI:" is of interest. Any
    /// thread.
    bool awaitsReports() const;

    /// The program ends: nothing more is sent, and the card keeps new messages from now on. Waits for that, a
    /// few seconds at most; texts from the card are still taken. Safe to call twice.
    void shutDown();
    void takeImmediate(const QString &text);
    void takeBroadcasts(const QString &text);

    /// Queues the message in the outbox, where it waits also over a restart. False, with a notice, for a text
    /// that no message can carry.
    bool send(const OutgoingSms &sms);
    /// Ends the run behind the part that is on its way. What was not sent stays in the outbox as failed.
    void cancelSending();
    /// Sends again what failed of these messages, whole ones and single parts, and with the SIM that is there
    /// what waits for another one.
    void retry(const QStringList &ids);
    /// Whether it waits for a SIM that is not in the card, or not known to be.
    bool waitsForOtherSim(const Message &message) const;
    const SendProgress &sending() const;

    /// Lists the SIM or the card anew. Does nothing for the computer.
    void refreshPlace(MessagePlace place);
    const PlaceState &place(MessagePlace place) const;
    /// Whether the card has a message store of its own beside the SIM's.
    bool hasCardStore() const;

    void copyTo(const QStringList &ids, MessagePlace place);
    void moveTo(const QStringList &ids, MessagePlace place);
    /// Into the deleted box; what lies on the SIM or the card is kept there first and then taken from it.
    /// Returns how many go: what the card lists without its content stays there.
    int removeMessages(const QStringList &ids);
    /// Takes the last removal back of which something is still in the deleted box. False when there is none.
    bool undoRemoval();
    void setRead(const QStringList &ids, bool isRead);

    /// The channels of cell broadcast that are listened to, e.g. {50, 919}.
    QList<int> broadcastChannels() const;
    void setBroadcastChannels(const QList<int> &channels);

    /// The service centre's number as the SIM holds it; empty while unknown.
    QString serviceCentre() const;
    /// Stores another one on the SIM; `sigNotice` says how that went.
    void setServiceCentre(const QString &number);

Q_SIGNALS:
    /// The card takes messages from now on.
    void sigCardReady();
    void sigSending(const corva::SendProgress &progress);
    /// The end of a run: messages that went out, and that did not, each recipient's counted by itself.
    void sigSendSummary(int sent, int failed);
    void sigPlaceChanged(corva::MessagePlace place);
    /// A message came in. Of a long one: its first part, and no more for the others.
    void sigNewMessage(const QString &id);
    /// Once after the start, when messages wait unread on the computer, the SIM or the card, and are to be
    /// announced; once more when a card that comes later brings others. `count` is of all.
    void sigUnreadAtStart(int count);
    /// An immediate message, whole or what came of it, which is kept nowhere: what is shown of it, the PDU of
    /// its first part, and the message as the store can keep it if the person wants that.
    void sigClass0(const QString &sender, const QString &text, const QString &pdu,
                   const corva::Message &message = {});
    /// "Message was successfully sent to ...", or what else a delivery report says. Without
    /// "deliveryReportMsgDlgShow" it is a failure, and to be told quietly.
    void sigDelivered(const QString &sentence);
    void sigBroadcast(const QString &id);
    /// A sentence for the person: a refusal in words, a store that fills up.
    void sigNotice(const QString &sentence);
    /// Another one, once when the SIM or the card has little room left; `place` goes on saying how much.
    void sigNearlyFull(const QString &sentence);
    void sigServiceCentreChanged(const QString &number);

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace corva
