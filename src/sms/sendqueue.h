// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/messageservice.h"
#include "sms/smscardjobs.h"

#include <QObject>
#include <deque>
#include <functional>
#include <set>

namespace corva
{

class CardWorker;
class MessageStore;

/// What a message without PDUs, a draft, would go out as, for its first recipient. None for one with PDUs.
std::vector<smsjobs::OutgoingPart> draftParts(const Message &message, const QString &serviceCentre);

/// Sends what waits in the outbox, part by part. Every part is on disk as "being sent" before it goes out and
/// with its outcome before the next: a part in that state after a crash may have gone out, and is never sent
/// again unasked.
class SendQueue final : public QObject
{
    Q_OBJECT

public:
    SendQueue(CardWorker &worker, MessageStore *store, QObject *parent);

    /// After the store was read: takes up what an earlier run left.
    void resume();
    /// Whether the card takes messages. Nothing goes out before.
    void setReady(bool isReady);
    void setServiceCentre(const QString &number) { m_serviceCentre = number; }

    /// False for a text that takes more parts than a message can have.
    bool add(const OutgoingSms &sms);
    void cancel();
    void retry(const QStringList &ids);

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
    void pump();
    Target next();
    void sendOne(const Target &target);
    void refuse(const Target &target, const QString &why);
    void took(const Target &target, const smsjobs::SentPart &sent);
    void giveUpWaiting();
    void endRun();
    void tell();

    CardWorker &m_worker;
    MessageStore *m_store;
    QString m_serviceCentre;
    std::deque<QString> m_waiting;              ///< ids, the oldest first
    std::set<std::pair<QString, int>> m_sent;   ///< message and recipient of this run
    std::set<std::pair<QString, int>> m_failed; ///< the same
    SendProgress m_progress;
    bool m_isReady = false;
    bool m_isBusy = false;
    bool m_isCancelled = false;
};

} // namespace corva
