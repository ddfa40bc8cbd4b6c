// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messageservice.h"
#include "sms/smscardjobs.h"

#include <QFuture>
#include <QObject>
#include <QTimer>
#include <deque>
#include <set>

namespace corva
{

class CardWorker;
class MessageStore;

/// What a message without PDUs, a draft, would go out as, for its first recipient. None for one with PDUs.
std::vector<smsjobs::OutgoingPart> draftParts(const Message &message, const QString &serviceCentre);

/// Sends what waits in the outbox, part by part. Every part is on disk as "being sent" before it goes out and
/// with its outcome before the next. A part in that state after a crash, or one that the card took and never
/// answered for, may have gone out: it is never sent again unasked, and does not hold up those behind it.
/// What waits while the card goes is sent when it is back with the same SIM. What an earlier run left goes
/// out with the SIM that it was queued for, and waits for as long as another one, or none that is known, is
/// there. What is bound to no SIM goes out with any, and is bound to that as soon as it is known.
class SendQueue final : public QObject
{
    Q_OBJECT

public:
    SendQueue(CardWorker &worker, MessageStore *store, QObject *parent);

    /// After the store was read: takes up what an earlier run left.
    void resume();
    /// The card takes messages from now on, with the SIM of this subscriber, the IMSI, empty when not known.
    /// Nothing goes out before. Again when that becomes known.
    void begin(const QString &subscriber);
    void pause();
    void setServiceCentre(const QString &number) { m_serviceCentre = number; }

    /// False for a text that takes more parts than a message can have.
    bool add(const OutgoingSms &sms);
    /// Nothing more of what waits now goes out; the part that is on its way does.
    void cancel();
    /// Sends again what was refused, what may have gone out, and what did not arrive by its report; with the
    /// SIM that is there also what waits for another one.
    void retry(const QStringList &ids);

    /// Whether the card is there, and it goes out unasked only once another SIM, or one that is known, is in
    /// it.
    bool waitsForOtherSim(const Message &message) const;

    const SendProgress &progress() const { return m_progress; }

Q_SIGNALS:
    void sigProgress(const corva::SendProgress &progress);
    void sigSummary(int sent, int failed);
    void sigRefused(const QString &sentence);

private:
    /// A part by its place.
    struct Target {
        QString id;
        int part = -1;
    };

    void enqueue(const QString &id);
    QString subscriberThere() const { return m_isSubscriberThere ? m_subscriber : QString(); }
    bool mayGoOut(const Message &message) const;
    void bind(const QString &id);
    void leaveWaiting(const Message &message);
    void takeUpLeft();
    bool giveUpOthers();
    void sayOtherSim();
    void tellOfHeldBack();
    void pump();
    Target next();
    void sendOne(const Target &target);
    void refuse(const Target &target, const QString &why);
    void took(const Target &target, const smsjobs::SentPart &sent);
    void putBack(const Target &target);
    void count(const Message &before, const Target &target, const smsjobs::SentPart &sent);
    void goOnWhen(const QFuture<bool> &stored);
    void giveUp(const QString &id);
    void giveUpWaiting();
    void endRun();
    void tell();

    CardWorker &m_worker;
    MessageStore *m_store;
    QString m_serviceCentre;
    QString m_subscriber;                       ///< of the last SIM that was known
    bool m_isSubscriberThere = false;           ///< the card has that SIM, or had it when it went
    QTimer m_heldBack;                          ///< until the person is told of what waits for its SIM
    std::deque<QString> m_waiting;              ///< ids, the oldest first
    QStringList m_left;                         ///< the same of what waits for its SIM
    std::set<std::pair<QString, int>> m_sent;   ///< message and recipient of this run
    std::set<std::pair<QString, int>> m_failed; ///< the same
    SendProgress m_progress;
    bool m_isReady = false;
    bool m_isBusy = false;
};

} // namespace corva
